#pragma once

/// @file
/// The widgets that are drawn for the documentation: main.cpp has a line for each.

#include <QWidget>
#include <memory>

std::unique_ptr<QWidget> AccessibleEdits();
std::unique_ptr<QWidget> Cells();
std::unique_ptr<QWidget> Editing();
std::unique_ptr<QWidget> WeighingForm();
std::unique_ptr<QWidget> Growing();
std::unique_ptr<QWidget> MathLabels();
std::unique_ptr<QWidget> MathSymbols();
std::unique_ptr<QWidget> MatrixEdits();
std::unique_ptr<QWidget> MatrixLayouts();
std::unique_ptr<QWidget> Models();
std::unique_ptr<QWidget> VectorEdits();
