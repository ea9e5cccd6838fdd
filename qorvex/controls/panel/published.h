#pragma once

/// @file
/// The properties that every editor publishes after its own.

/// One line a property: QORVEX_PUBLISHED(Type, Name).
#define QORVEX_PUBLISHED_PANEL      \
  QORVEX_PUBLISHED_NUMBERS          \
  QORVEX_PUBLISHED(bool, AutoEdits) \
  QORVEX_PUBLISHED(bool, CanGrow)   \
  QORVEX_PUBLISHED(qint64, UndoLimit)
