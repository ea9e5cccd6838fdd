#pragma once

/// @file
/// Unit QorvexVectorEdit: the editors of vectors.

#include "qorvex/base/errors.h"
#include "qorvex/controls/labelled_vector_edit.h"
#include "qorvex/controls/vector_edit.h"
