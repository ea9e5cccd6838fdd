#include <qorvex/base/text.h>

#include <string>

std::string TextOf(qorvex::Extended value);

int main() { return TextOf(qorvex::Str2Float("0.1")) == "0.1" ? 0 : 1; }
