#pragma once

#include <string>

#include "elements/catalogue.h"
#include "elements/layers.h"
#include "elements/parts.h"
#include "elements/setup.h"
#include "presentation/texts/words.h"

namespace velmar::presentation {

/// The theory that a calculation applies, with its relation's mark: "relazione sperimentale [10]".
std::string TheoryText(elements::Calculation calculation, const Words& words);

/// The kind of element as a value behind a caption: the label without its closing colon.
std::string ElementTypeText(elements::Calculation calculation, const Words& words);

/// The title of printed page and reports: airborne, facade or impact.
std::string TitleOf(elements::Family family, const Words& words);

/// An entry of `ComboTipoIntercSEA`: "Intercapedine vuota", "Fibroso+ Massa", ...
std::string SeaCavityTypeText(elements::SeaCavityType type, const Words& words);

/// The name of a stack of `calculation`: "Parete 1", "Lastra 1" of a glazing, "Solaio", "Rivestimento", ...
std::string StackName(elements::Calculation calculation, elements::Stack stack, const Words& words);

/// The name of a part: of its stack, and of a leaf of a free list its number: "Pannello 2".
std::string PartName(elements::Calculation calculation, const elements::Part& part, const Words& words);

/// `caption` without a closing colon.
std::string WithoutColon(std::string caption);

/// The name of a layer; in a free list of layers with what it is there, where it is more than a plate:
/// "Cartongesso (Lastra incollata)", "PVB".
std::string LayerName(const elements::Setup& setup, const elements::Layer& layer, const Words& words);

/// What joins the leaves of the cavity that begins at row `index` of a free list of layers, with how many or
/// how far apart; empty where nothing does.
std::string ConnectionText(const elements::Multilayer& list, int index, const Words& words);

}  // namespace velmar::presentation
