#pragma once

#include <string>

#include "elements/setup.h"
#include "presentation/texts/words.h"

namespace velmar::presentation {

/// The layers of the first leaf: "Intonaco di gesso (15 mm); Cartongesso (12,5 mm) x 2".
std::string CompilaDescrizioneParete1(const elements::Setup& setup);
/// The layers of the second leaf, or the screed.
std::string CompilaDescrizioneParete2(const elements::Setup& setup);
/// The rows of a cavity of generic materials.
std::string CompilaDescrizioneIntercapedine(const elements::Setup& setup);
/// The layers of the first SEA side with their damping layers, in the order in which they stand.
std::string CompilaDescrizionePareteSEA1(const elements::Setup& setup);
/// The same of the second SEA side, or of a lining.
std::string CompilaDescrizionePareteSEA2(const elements::Setup& setup);
/// The SEA cavity with its depth and contents, set off from the side before it:
/// " -- INTERCAPEDINE (60 mm): Lana di vetro (45 mm)".
std::string CompilaDescrizioneIntercapedineSEA(const elements::Setup& setup, const Words& words);

inline constexpr std::size_t kLongestDescription = 250;

/// The description of the element, whole; equal parts of a facade are counted. Empty before a choice.
std::string ElementDescription(const elements::Setup& setup, const Words& words);

/// The description under which a result is stored, at most 250 characters; that of a facade ends in "..."
/// where it is cut. Empty before a choice.
std::string ResultDescription(const elements::Setup& setup, const Words& words);

/// The name that is proposed for a result: "Parete x".
std::string ProposedName(const elements::Setup& setup, const Words& words);

}  // namespace velmar::presentation
