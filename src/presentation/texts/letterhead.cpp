#include "presentation/texts/letterhead.h"

namespace velmar::presentation {

Letterhead LetterheadOf(const elements::StudioProfile& profile) {
  return {.name = profile.name,
          .address = profile.address,
          .footer = profile.footer,
          .signer = profile.signer.empty() ? profile.name : profile.signer,
          .register_number = profile.register_number};
}

}  // namespace velmar::presentation
