#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmar::elements {

/// The name of a value in KeyedValues together with its type, so that no two places read one value
/// differently. `Value` is std::string, double or bool.
template <typename Value>
struct ValueKey {
  std::string name{};
};

/// What a project holds beyond the inputs of its calculation: values under names, in the order in which they
/// were first set. Names that this program does not know are kept with their values, and stay in their place.
///
/// A name consists of letters and digits of ASCII, ".", "_" and "-" ("requisito.valore"); case counts. A
/// value is any UTF-8 text, line breaks included; one that is set to nothing is removed.
class KeyedValues {
 public:
  using Entry = std::pair<std::string, std::string>;

  KeyedValues() = default;
  /// @param entries names with their texts
  /// @throws std::invalid_argument when a name is none, or comes twice
  explicit KeyedValues(std::vector<Entry> entries);

  /// Whether `name` can be the name of a value.
  static bool IsName(std::string_view name);

  /// The value of `key`; nothing when there is none, or its text is none of its type: a number is finite,
  /// with decimal comma or point, a yes or no is "Vero" or "Falso".
  template <typename Value>
  std::optional<Value> Get(const ValueKey<Value>& key) const;

  /// Sets the value of `key`, or removes it. A number is stored in the fewest digits that give it back.
  /// @throws std::invalid_argument when the name is none, or the number not finite
  template <typename Value>
  void Set(const ValueKey<Value>& key, const std::optional<Value>& value);

  /// Every name with its text, in order.
  const std::vector<Entry>& Entries() const { return entries_; }
  bool IsEmpty() const { return entries_.empty(); }

  bool operator==(const KeyedValues&) const = default;

 private:
  const std::string* Find(std::string_view name) const;

  std::vector<Entry> entries_;
};

}  // namespace velmar::elements
