#pragma once

/// @file
/// The commands of the program. Each function adds one, with its options and what it runs.

#include <CLI/CLI.hpp>

namespace qorvex::apps {

/// `describe`: the descriptive statistics of columns of numbers.
void AddDescribe(CLI::App& program);

/// `correlate`: the correlations of the columns of a table.
void AddCorrelate(CLI::App& program);

/// `grouped`: tables of classes of equal width, and their figures.
void AddGrouped(CLI::App& program);

/// `compare`: two columns side by side.
void AddCompare(CLI::App& program);

/// `fit`: least-squares curves through columns of a table.
void AddFit(CLI::App& program);

/// `test`: tests of hypotheses about columns of a table.
void AddTestCommands(CLI::App& program);

/// `matrix`: inverses, products and ranks of matrices.
void AddMatrix(CLI::App& program);

/// `dist`: probabilities, densities and quantiles.
void AddDist(CLI::App& program);

/// `random`: random variates.
void AddRandom(CLI::App& program);

/// `selftest`: whether this machine computes the figures of the release.
void AddSelfTest(CLI::App& program);

/// `help`: the --help of a command.
void AddHelp(CLI::App& program);

}  // namespace qorvex::apps
