#pragma once

#include <string>

#include <CLI/App.hpp>

#include "presentation/texts/words.h"

namespace velmar::cli {

/// Headings and marks of the help of `app` and of all its commands in the user's language; to be called when
/// they are all there.
void SayHelpIn(const presentation::Words& words, CLI::App& app);

/// What is wrong with the arguments that `app` could not parse, in the user's language, and which of them it
/// is.
std::string WrongUsage(const CLI::ParseError& error, const CLI::App& app, const presentation::Words& words);

}  // namespace velmar::cli
