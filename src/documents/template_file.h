#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "foundation/message.h"

namespace velmar::documents {

/// The bytes of the template `file`. @throws Failure, which names it, when it is missing or cannot be read
std::string ReadTemplateFile(const std::filesystem::path& file);

/// What `use` makes of the template `file`. @throws Failure, which names the file, when it is missing or no
/// document can be made of it
std::string WithTemplate(const std::filesystem::path& file,
                         const std::function<std::string(const std::string& bytes)>& use);

/// What is wrong with the document template `file`, Word or Excel, a line each: placeholders that nobody
/// knows, blocks without beginning or end, pictures wider than their place, links to files outside.
/// @throws Failure, which names the file, when no document can be made of it
Message CheckTemplateFile(const std::filesystem::path& file);

}  // namespace velmar::documents
