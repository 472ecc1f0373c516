#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "elements/studio_profile.h"
#include "foundation/message.h"
#include "presentation/documents/picture.h"
#include "presentation/texts/letterhead.h"

namespace velmar::presentation {

/// What a studio puts on its documents.
struct StudioPaper {
  Letterhead words{};
  std::optional<Picture> logo{};
  std::optional<Picture> signature{};

  /// Whether there is anything that a signature block is for.
  bool HasSignature() const { return signature || !words.signer.empty() || !words.register_number.empty(); }
};

/// How large the pictures are on paper at most.
inline constexpr double kLogoWidthMm = 44.0;
inline constexpr double kLogoHeightMm = 13.0;
inline constexpr double kSignatureWidthMm = 52.0;
inline constexpr double kSignatureHeightMm = 14.0;

/// The PNG, JPEG or SVG file `bytes` as a picture of at most `width_mm` by `height_mm`, at 600 dots an inch
/// where it is vectors; nothing when it cannot be read or is larger than 100 megapixels. A QGuiApplication
/// must exist.
std::optional<Picture> PictureOfFile(std::string_view bytes, double width_mm, double height_mm,
                                     const std::string& alternative_text);

/// The paper of `profile`. @param read the bytes of a picture that the profile names; throws Failure
/// @param left_out hears of each picture that cannot be used: its caption, and why
StudioPaper StudioPaperOf(const elements::StudioProfile& profile,
                          const std::function<std::string(const std::string& name)>& read,
                          const std::function<void(const Message&)>& left_out);

}  // namespace velmar::presentation
