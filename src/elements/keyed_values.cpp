#include "elements/keyed_values.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <type_traits>
#include <unordered_set>

#include "foundation/decimal.h"

namespace velmar::elements {
namespace {

constexpr const char* kYes = "Vero";
constexpr const char* kNo = "Falso";

bool IsNameCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' || c == '_' ||
         c == '-';
}

template <typename Value>
std::optional<Value> Parsed(const std::string& text) {
  if constexpr (std::is_same_v<Value, double>) {
    return ParseDecimal(text);
  } else if constexpr (std::is_same_v<Value, bool>) {
    if (text == kYes) return true;
    if (text == kNo) return false;
    return std::nullopt;
  } else {
    return text;
  }
}

template <typename Value>
std::string Formatted(const Value& value) {
  if constexpr (std::is_same_v<Value, double>) {
    if (!std::isfinite(value)) throw std::invalid_argument("a keyed number is not finite");
    return FormatShortest(value);
  } else if constexpr (std::is_same_v<Value, bool>) {
    return value ? kYes : kNo;
  } else {
    return value;
  }
}

}  // namespace

bool KeyedValues::IsName(std::string_view name) {
  return !name.empty() && std::ranges::all_of(name, IsNameCharacter);
}

KeyedValues::KeyedValues(std::vector<Entry> entries) : entries_(std::move(entries)) {
  std::unordered_set<std::string_view> names;
  for (const Entry& entry : entries_) {
    if (!IsName(entry.first) || !names.insert(entry.first).second)
      throw std::invalid_argument("not the name of one value: " + entry.first);
  }
}

const std::string* KeyedValues::Find(std::string_view name) const {
  const auto found = std::ranges::find(entries_, name, &Entry::first);
  return found == entries_.end() ? nullptr : &found->second;
}

template <typename Value>
std::optional<Value> KeyedValues::Get(const ValueKey<Value>& key) const {
  const std::string* text = Find(key.name);
  if (text == nullptr) return std::nullopt;
  return Parsed<Value>(*text);
}

template <typename Value>
void KeyedValues::Set(const ValueKey<Value>& key, const std::optional<Value>& value) {
  if (!IsName(key.name)) throw std::invalid_argument("not the name of a value: " + key.name);
  if (!value) {
    std::erase_if(entries_, [&](const Entry& entry) { return entry.first == key.name; });
    return;
  }
  std::string text = Formatted(*value);
  const auto found = std::ranges::find(entries_, key.name, &Entry::first);
  if (found != entries_.end()) {
    found->second = std::move(text);
  } else {
    entries_.emplace_back(key.name, std::move(text));
  }
}

template std::optional<std::string> KeyedValues::Get(const ValueKey<std::string>&) const;
template std::optional<double> KeyedValues::Get(const ValueKey<double>&) const;
template std::optional<bool> KeyedValues::Get(const ValueKey<bool>&) const;
template void KeyedValues::Set(const ValueKey<std::string>&, const std::optional<std::string>&);
template void KeyedValues::Set(const ValueKey<double>&, const std::optional<double>&);
template void KeyedValues::Set(const ValueKey<bool>&, const std::optional<bool>&);

}  // namespace velmar::elements
