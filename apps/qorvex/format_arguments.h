#pragma once

/// @file
/// The arguments that say how a table or a matrix is written.

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "apps/common/table_format.h"

namespace qorvex::apps {

/// Delimiters, quotes, encodings and numbers, for --help.
extern const char* const kTextHelp;

/// Adds --delimiter, --decimal and --encoding; what is not given stays empty. The format must
/// outlive the parsing.
void AddTextFormat(CLI::App& command, TableFormat& format);

/// Adds --na. The words must outlive the parsing.
void AddMissingWords(CLI::App& command, MissingWords& words);

/// The texts between commas, quoted as in CSV. Throws CLI::ValidationError, with the name of the
/// option, for quotes that are not closed.
[[nodiscard]] std::vector<std::string> SplitList(const std::string& option,
                                                 const std::string& list);

}  // namespace qorvex::apps
