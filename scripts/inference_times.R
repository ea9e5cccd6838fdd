# Prints what R's tests take, in microseconds, for the samples of inference_benchmark.

scattered <- function(n, start) ((start + 0:(n - 1)) * 7919) %% 8191 / 8192

time <- function(name, n, call) {
  repetitions <- max(10, 20000 / n)
  best <- min(replicate(5, system.time(for (i in seq_len(repetitions)) suppressWarnings(call()))[["elapsed"]]))
  cat(sprintf("%-40s %5d %10.0f\n", name, n, best / repetitions * 1e6))
}

for (n in c(10, 100, 1000, 5000)) {
  x <- scattered(n, 0)
  y <- scattered(n, n)
  time("t.test", n, function() t.test(x, mu = 0.45))
  time("shapiro.test", n, function() shapiro.test(x))
  time("ks.test(x, punif)", n, function() ks.test(x, punif, 0, 1.06, exact = n <= 1000))
  time("ks.test(x, y)", n, function() ks.test(x, y, exact = n <= 1000))
  if (n <= 100) time("wilcox.test(x, y)", n, function() wilcox.test(x, y, exact = TRUE))
}
