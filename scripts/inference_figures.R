# Makes the tables of R's figures: tests/data/tables/inference_r.csv and intervals_r.csv, each row with the call that
# made it. The tests need no R.
#
# usage: Rscript scripts/inference_figures.R FOLDER

folder <- commandArgs(TRUE)[1]
lines <- grep("^#", readLines(file.path(folder, "inference_samples.csv")), value = TRUE, invert = TRUE)[-1]
for (fields in strsplit(lines, ",")) assign(fields[1], scan(text = fields[2], quiet = TRUE))
formula <- function(n, start) ((start + 0:(n - 1)) * 7919) %% 8191 / 8192

digits <- function(x) if (length(x) == 0) "" else sprintf("%.17g", x)

# %s stands for the alternative. Tests without one are one-sided.
tests <- c(
  "one-sample-t; extra_a|0; t.test(extra_a, alternative = '%s')",
  "one-sample-t; wide|7.5; t.test(wide, mu = 7.5, alternative = '%s')",
  "one-sample-t; formula 1000 0|0.49; t.test(formula(1000, 0), mu = 0.49, alternative = '%s')",
  "two-sample-t; extra_a|extra_b; t.test(extra_a, extra_b, var.equal = TRUE, alternative = '%s')",
  "two-sample-t; wide|twelve|2; t.test(wide, twelve, mu = 2, var.equal = TRUE, alternative = '%s')",
  "welch-t; extra_a|extra_b; t.test(extra_a, extra_b, alternative = '%s')",
  "welch-t; wide|twelve|2; t.test(wide, twelve, mu = 2, alternative = '%s')",
  "paired-t; extra_a|extra_b; t.test(extra_a, extra_b, paired = TRUE, alternative = '%s')",
  "variance-ratio; extra_a|extra_b; var.test(extra_a, extra_b, alternative = '%s')",
  "variance-ratio; wide|twelve|40; var.test(wide, twelve, ratio = 40, alternative = '%s')",
  "fit; 89 37 30 28 2|0.4 0.2 0.2 0.15 0.05; chisq.test(c(89, 37, 30, 28, 2), p = c(40, 20, 20, 15, 5), rescale.p = TRUE)",
  "fit; 12 15 9 20 1|1 1 1 1 1; chisq.test(c(12, 15, 9, 20, 1))",
  "independence; 762 327 468|484 239 477|0; chisq.test(rbind(c(762, 327, 468), c(484, 239, 477)))",
  "independence; 10 2|3 15|0; chisq.test(rbind(c(10, 2), c(3, 15)), correct = FALSE)",
  "independence; 10 2|3 15|1; chisq.test(rbind(c(10, 2), c(3, 15)))",
  "independence; 5 5|6 5|1; chisq.test(rbind(c(5, 5), c(6, 5)))",
  "binomial; 682|925|0.75; binom.test(682, 925, 0.75, alternative = '%s')",
  "binomial; 3|20|0.15; binom.test(3, 20, 0.15, alternative = '%s')",
  "binomial; 2|12|0.55; binom.test(2, 12, 0.55, alternative = '%s')",
  "binomial; 60|1000|0.05; binom.test(60, 1000, 0.05, alternative = '%s')",
  "binomial; 0|10|0.1; binom.test(0, 10, 0.1, alternative = '%s')",
  "ks-uniform; uniform_ten|0|1; ks.test(uniform_ten, punif, 0, 1, exact = TRUE, alternative = '%s')",
  "ks-uniform; formula 100 3|-0.3|1; ks.test(formula(100, 3), punif, -0.3, 1, exact = TRUE, alternative = '%s')",
  "ks-uniform; formula 4000 0|0|1.02; ks.test(formula(4000, 0), punif, 0, 1.02, exact = FALSE, alternative = '%s')",
  "ks-two; group_a|group_b; ks.test(group_a, group_b, exact = TRUE, alternative = '%s')",
  "ks-two; tied_a|tied_b; ks.test(tied_a, tied_b, exact = TRUE, alternative = '%s')",
  "ks-two; formula 400 0|low; ks.test(formula(400, 0), low, exact = TRUE, alternative = '%s')",
  "ks-two; formula 1001 0|low; ks.test(formula(1001, 0), low, exact = FALSE, alternative = '%s')",
  "shapiro-wilk; three; shapiro.test(three)",
  "shapiro-wilk; five; shapiro.test(five)",
  "shapiro-wilk; seven; shapiro.test(seven)",
  "shapiro-wilk; eleven; shapiro.test(eleven)",
  "shapiro-wilk; twelve; shapiro.test(twelve)",
  "shapiro-wilk; skewed; shapiro.test(skewed)",
  "shapiro-wilk; tied_a; shapiro.test(tied_a)",
  "shapiro-wilk; formula 300 0; shapiro.test(formula(300, 0))",
  "mann-whitney; group_a|group_b; wilcox.test(group_a, group_b, alternative = '%s')",
  "mann-whitney; group_a|group_b|0.25; wilcox.test(group_a, group_b, mu = 0.25, alternative = '%s')",
  "mann-whitney; tied_a|tied_b; wilcox.test(tied_a, tied_b, exact = FALSE, alternative = '%s')",
  "mann-whitney; formula 50 0|formula 50 90|0.0625; wilcox.test(formula(50, 0), formula(50, 90), mu = 0.0625, exact = TRUE, alternative = '%s')",
  "signed-rank; signs; wilcox.test(signs, alternative = '%s')",
  "signed-rank; signs|0.5; wilcox.test(signs, mu = 0.5, alternative = '%s')",
  "signed-rank; signs_tied; wilcox.test(signs_tied, exact = FALSE, alternative = '%s')",
  "signed-rank; formula 50 0|0.40625; wilcox.test(formula(50, 0), mu = 0.40625, exact = TRUE, alternative = '%s')",
  "signed-rank; formula 51 0|0.40625; wilcox.test(formula(51, 0), mu = 0.40625, exact = FALSE, alternative = '%s')",
  "signed-rank-pairs; tied_a|signs; wilcox.test(tied_a, signs, paired = TRUE, alternative = '%s')")

intervals <- c(
  "mean; extra_a|0.95; t.test(extra_a)$conf.int",
  "mean; wide|0.5; t.test(wide, conf.level = 0.5)$conf.int",
  "prediction; extra_a|0.95; predict(lm(extra_a ~ 1), data.frame(1), interval = 'prediction')[, c('lwr', 'upr')]",
  "pooled-difference; extra_a|extra_b|0.95; t.test(extra_a, extra_b, var.equal = TRUE)$conf.int",
  "welch-difference; wide|twelve|0.99; t.test(wide, twelve, conf.level = 0.99)$conf.int",
  "clopper-pearson; 682|925|0.95; binom.test(682, 925)$conf.int",
  "clopper-pearson; 0|10|0.99; binom.test(0, 10, conf.level = 0.99)$conf.int",
  "wilson; 682|925|0.95; prop.test(682, 925, correct = FALSE)$conf.int",
  "wilson; 1|1000|0.9; prop.test(1, 1000, correct = FALSE, conf.level = 0.9)$conf.int")

table <- function(file, columns, cases, figures) {
  rows <- unlist(lapply(strsplit(cases, "; "), figures))
  comment <- c(paste0("# Figures of ", R.version.string, ", with 17 digits, by scripts/inference_figures.R."),
               "# Arguments are samples of inference_samples.csv, numbers, or formulas as in the script.")
  writeLines(c(comment, paste0(columns, ",call"), rows), file.path(folder, file))
}

table("inference_r.csv", "test,arguments,alternative,statistic,df,df2,p", tests, function(fields) {
  alternatives <- if (grepl("%s", fields[3])) c("two.sided", "less", "greater") else "greater"
  sapply(alternatives, function(alternative) {
    call <- sub("%s", alternative, fields[3])
    result <- suppressWarnings(eval(parse(text = call)))
    df <- result$parameter
    if (fields[1] == "binomial") df <- NULL
    paste(fields[1], fields[2], sub("two.sided", "two-sided", alternative), digits(result$statistic[[1]]),
          if (length(df) > 0) digits(df[[1]]) else "", if (length(df) > 1) digits(df[[2]]) else "",
          digits(result$p.value), call, sep = ",")
  })
})
table("intervals_r.csv", "interval,arguments,least,greatest", intervals, function(fields) {
  ends <- eval(parse(text = fields[3]))
  paste(fields[1], fields[2], digits(ends[[1]]), digits(ends[[2]]), fields[3], sep = ",")
})
