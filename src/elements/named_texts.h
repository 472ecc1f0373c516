#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmar::elements {

/// Texts under names, one line each: "name=value". A value is any text; line breaks, tabs and backslashes in
/// it are written with a backslash.
using NamedTexts = std::vector<std::pair<std::string, std::string>>;

/// The lines of `texts`; names must hold neither "=" nor a line break.
std::string WriteNamedTexts(const NamedTexts& texts);
/// The texts of which `lines` were written, in order; nothing when a line has no name or an escape is none.
std::optional<NamedTexts> ReadNamedTexts(std::string_view lines);

/// Several texts as one, parted by tabs; those within are written with a backslash.
std::string JoinTexts(const std::vector<std::string>& texts);
/// The texts of which `joined` was made; nothing when an escape is none.
std::optional<std::vector<std::string>> PartTexts(std::string_view joined);

}  // namespace velmar::elements
