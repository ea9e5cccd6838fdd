#pragma once

/// @file
/// Visibility of public symbols. Everything else in the libraries is hidden.

/// Marks what a library offers to its users.
#define QORVEX_EXPORT __attribute__((visibility("default")))
