#include <qorvex/base/text.h>

#include <string>

std::string TextOf(qorvex::Extended value) { return qorvex::Float2Str(value); }
