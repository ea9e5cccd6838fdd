#pragma once

/// @file
/// Visibility of public symbols. Everything else in the libraries is hidden.

#define QORVEX_EXPORT __attribute__((visibility("default")))
