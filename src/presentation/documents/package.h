#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace velmar::presentation {

/// A package of named parts (ZIP), as office documents are: ECMA-376 part 2. Changed parts are written anew,
/// all others stay byte for byte, also in their compressed form. The same changes give the same bytes.
class Package {
 public:
  /// How much a template may hold, so that a hostile one cannot fill the memory.
  static constexpr std::size_t kMostParts = 2000;
  static constexpr std::size_t kMostBytesOfAPart = 48U << 20U;
  static constexpr std::size_t kMostBytes = 128U << 20U;

  /// Reads every part of `zip`, so that damage anywhere is found before anything is filled in.
  /// @throws TemplateFailure when it is no ZIP, damaged, encrypted, too large, or when a part's name leaves
  /// the package
  explicit Package(std::string_view zip);

  bool Has(const std::string& name) const { return parts_.contains(name); }

  /// @throws TemplateFailure when there is no such part
  const std::string& Part(const std::string& name) const;

  std::vector<std::string> Names() const;

  /// Replaces the part, or adds it.
  void Put(const std::string& name, std::string bytes);

  void Remove(const std::string& name);

  /// The package as a ZIP.
  std::string Bytes() const;

 private:
  std::string original_;
  std::map<std::string, std::string> parts_;
  std::set<std::string> original_names_;
  std::set<std::string> changed_;
};

/// Makes a package of `parts`, in their order, with fixed times: the same parts give the same bytes.
std::string MakePackage(const std::vector<std::pair<std::string, std::string>>& parts);

}  // namespace velmar::presentation
