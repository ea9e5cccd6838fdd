#pragma once

/// @file
/// Visibility of public symbols; all others are hidden.

/// Marks a symbol as part of the public interface.
#define QORVEX_EXPORT __attribute__((visibility("default")))
