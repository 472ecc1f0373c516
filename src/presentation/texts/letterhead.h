#pragma once

#include <string>

#include "elements/studio_profile.h"

namespace velmar::presentation {

/// The texts that a studio puts on its documents. UTF-8.
struct Letterhead {
  std::string name{};
  std::string address{};  ///< may hold line breaks
  std::string footer{};
  std::string signer{};
  std::string register_number{};

  /// Whether there is anything for the head of a page.
  bool HasHead() const { return !name.empty() || !address.empty(); }
};

/// The letterhead of `profile`.
Letterhead LetterheadOf(const elements::StudioProfile& profile);

}  // namespace velmar::presentation
