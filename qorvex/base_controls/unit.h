#pragma once

/// @file
/// How a unit of widgets opens its namespace: QORVEX_WIDGET_UNIT(QorvexVectorEdit) {.

/// A form names a widget by what moc records of it. moc does not see the inline namespace of the
/// unit, so that forms name qorvex::TQorVectorEdit as programs do.
#ifdef Q_MOC_RUN
#define QORVEX_WIDGET_UNIT(unit) namespace qorvex
#else
#define QORVEX_WIDGET_UNIT(unit) namespace qorvex::inline unit
#endif

/// A published property whose accessors go by its name: Name, setName and resetName.
#define QORVEX_PUBLISHED(Type, Name) \
  Q_PROPERTY(Type Name READ Name WRITE set##Name RESET reset##Name)
