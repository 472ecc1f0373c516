#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace velmar::manual {

/// What a directive is given: "{{banda: vetro-6; 500}}" has the arguments "vetro-6" and "500".
using Arguments = std::vector<std::string>;

/// What stands in the place of a directive, as Markdown.
using Directive = std::function<std::string(const Arguments&)>;

/// The directives of the manual by their names. What the manual says of numbers, lists and messages comes out
/// of the program through them, so that it cannot grow old.
using Directives = std::map<std::string, Directive>;

/// `text` with every "{{name: argument; argument}}" replaced.
/// @param name of the text, for what is thrown
/// @throws std::runtime_error that names text and line: an unknown directive, one that fails, or one that is
///         not closed on its line
std::string Expand(const std::string& text, const Directives& directives, const std::string& name);

/// `text` with a number before every chapter ("## Vetri" as "## 4. Vetri"); the first one has `next`, which
/// counts on.
std::string WithChapterNumbers(const std::string& text, int& next);

/// A table in Markdown. Every row is as long as `heads`.
std::string TableText(const std::vector<std::string>& heads,
                      const std::vector<std::vector<std::string>>& rows);

/// A number with a decimal comma and the sign that print uses for minus.
std::string NumberText(double value, int decimals);

/// NumberText() with a plus before what is above zero.
std::string SignedText(double value, int decimals);

}  // namespace velmar::manual
