# Writes R's figures of quantiles and correlations: tests/data/tables/r_quantiles.csv and r_correlations.csv.
#
# usage: Rscript order_figures.R FOLDER

folder <- commandArgs(trailingOnly = TRUE)[1]
figure <- function(value) formatC(value, digits = 17, format = "g", width = -1)
input <- function(value) formatC(value, digits = 15, format = "g", width = -1)
list_of <- function(values) paste(input(values), collapse = " ")
write_row <- function(file, ...) cat(paste(c(...), collapse = ","), "\n", sep = "", file = file, append = TRUE)

file <- file.path(folder, "r_quantiles.csv")
cat("# R ", as.character(getRversion()), ": quantile(x, p, type = t, names = FALSE) in the columns t1 to t9, mad(x, constant = 1) in the last.\n",
    "x,p,t1,t2,t3,t4,t5,t6,t7,t8,t9,mad\n", sep = "", file = file)
samples <- list(-3.5, c(2, 8.25), c(1, 4, 4, 9, 16.5), c(2.5, 3, 3, 4.25, 7, 9.5, 11, 20, 20.5, 31),
                c(-1e6, -12.5, -3, -2.875, 0, 0.1, 0.3, 5, 17, 17, 17, 250, 4096.25))
for (x in samples) for (p in c(0, 0.01, 0.1, 0.25, 0.3, 0.4375, 0.5, 0.6, 0.75, 0.95, 1)) {
  quantiles <- sapply(1:9, function(t) quantile(x, p, type = t, names = FALSE))
  write_row(file, list_of(x), input(p), figure(quantiles), figure(mad(x, constant = 1)))
}

file <- file.path(folder, "r_correlations.csv")
cat("# R ", as.character(getRversion()), ": cor(x, y, method = \"pearson\", \"kendall\" and \"spearman\"), cov(x, y).\n",
    "x,y,pearson,kendall,spearman,cov\n", sep = "", file = file)
set.seed(18)
pairs <- list(list(1:10, c(1, 3, 2, 5, 4, 8, 6, 6, 10, 7)), list(c(1, 1, 2, 2, 3, 3), c(2, 1, 1, 3, 2, 2)),
              list(c(5.5, -2, 7.25), c(1, 9, -4.5)), list(sample(1:5, 40, TRUE), sample(1:4, 40, TRUE)),
              list(round(rnorm(30), 3), round(rnorm(30, 10, 3), 2)), list(2000:2025, round(cumsum(runif(26)), 2)))
for (pair in pairs) {
  x <- pair[[1]]
  y <- pair[[2]]
  write_row(file, list_of(x), list_of(y), figure(cor(x, y)), figure(cor(x, y, method = "kendall")),
            figure(cor(x, y, method = "spearman")), figure(cov(x, y)))
}
