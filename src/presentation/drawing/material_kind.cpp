#include "presentation/drawing/material_kind.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>
#include <string_view>

namespace velmar::presentation {
namespace {

using enum MaterialKind;

struct Fragment {
  std::string_view text;
  MaterialKind kind;
};

// The fragment that begins first in the lower-case name decides (a plastered brick wall is a wall); of two
// that begin together the one that stands first here, the narrower word.
constexpr std::array kFragments = {
    Fragment{"cartongesso", kPlasterboard},
    Fragment{"gessofibra", kPlasterboard},
    Fragment{"lastra in gesso", kPlasterboard},
    Fragment{"lastra di gesso", kPlasterboard},
    Fragment{"gypsum board", kPlasterboard},
    Fragment{"plasterboard", kPlasterboard},
    Fragment{"fibrocemento", kPlasterboard},
    Fragment{"lastra cementizia", kPlasterboard},
    Fragment{"smorzant", kDamping},
    Fragment{"intonac", kPlaster},
    Fragment{"malta", kPlaster},
    Fragment{"rasatura", kPlaster},
    Fragment{"plaster", kPlaster},
    Fragment{"massetto", kScreed},
    Fragment{"sottofondo", kScreed},
    Fragment{"screed", kScreed},
    Fragment{"autolivellante", kScreed},
    Fragment{"sabbia", kScreed},
    Fragment{"ghiaia", kScreed},
    Fragment{"graniglia", kScreed},
    Fragment{"magnesiaco", kScreed},
    Fragment{"lana di legno", kWool},
    Fragment{"lana di vetro", kWool},
    Fragment{"lana", kWool},
    Fragment{"wool", kWool},
    Fragment{"fibra di legno", kWool},
    Fragment{"fibra minerale", kWool},
    Fragment{"fibra di poliestere", kWool},
    Fragment{"cellulosa", kWool},
    Fragment{"velo di vetro", kWool},
    Fragment{"vetro cellulare", kFoam},
    Fragment{"vetroresina", kGeneric},
    Fragment{"vetro", kGlass},
    Fragment{"vetri", kGlass},
    Fragment{"glass", kGlass},
    Fragment{"solaio in legno", kWood},
    Fragment{"laterocemento", kConcrete},
    Fragment{"laterizi", kBrick},
    Fragment{"mattone", kBrick},
    Fragment{"mattoni", kBrick},
    Fragment{"forat", kBrick},
    Fragment{"porizzat", kBrick},
    Fragment{"doppio uni", kBrick},
    Fragment{"brick", kBrick},
    Fragment{"muratura", kBrick},
    Fragment{"silico", kBrick},
    Fragment{"tufo", kStone},
    Fragment{"pomice", kConcrete},
    Fragment{"calcestruzzo", kConcrete},
    Fragment{"concrete", kConcrete},
    Fragment{"gasbeton", kConcrete},
    Fragment{"argilla espansa", kConcrete},
    Fragment{"cemento armato", kConcrete},
    Fragment{"solaio", kConcrete},
    Fragment{"clinker", kConcrete},
    Fragment{"gesso", kPlasterboard},
    Fragment{"truciol", kWood},
    Fragment{"legno", kWood},
    Fragment{"wood", kWood},
    Fragment{"mdf", kWood},
    Fragment{"hdf", kWood},
    Fragment{"osb", kWood},
    Fragment{"compensato", kWood},
    Fragment{"x-lam", kWood},
    Fragment{"lamellare", kWood},
    Fragment{"parquet", kWood},
    Fragment{"sughero", kWood},
    Fragment{"abete", kWood},
    Fragment{"pino", kWood},
    Fragment{"larice", kWood},
    Fragment{"rovere", kWood},
    Fragment{"faggio", kWood},
    Fragment{"laminato", kWood},
    Fragment{"nido d'ape", kMetal},
    Fragment{"acciaio", kMetal},
    Fragment{"lamiera", kMetal},
    Fragment{"alluminio", kMetal},
    Fragment{"piombo", kMetal},
    Fragment{"steel", kMetal},
    Fragment{"rame", kMetal},
    Fragment{"zinco", kMetal},
    Fragment{"ferro", kMetal},
    Fragment{"gomma", kResilient},
    Fragment{"guaina", kResilient},
    Fragment{"membrana", kResilient},
    Fragment{"elastom", kResilient},
    Fragment{"neoprene", kResilient},
    Fragment{"epdm", kResilient},
    Fragment{"rubber", kResilient},
    Fragment{"polistirene esp", kFoam},
    Fragment{"polistirene estr", kFoam},
    Fragment{"espans", kFoam},
    Fragment{"schiuma", kFoam},
    Fragment{"poliisocianurato", kFoam},
    Fragment{"poliuretan", kFoam},
    Fragment{"eps", kFoam},
    Fragment{"xps", kFoam},
    Fragment{"foam", kFoam},
    Fragment{"marmo", kStone},
    Fragment{"granito", kStone},
    Fragment{"calcare", kStone},
    Fragment{"arenaria", kStone},
    Fragment{"travertino", kStone},
    Fragment{"basalto", kStone},
    Fragment{"pietra", kStone},
    Fragment{"piastrell", kStone},
    Fragment{"gres", kStone},
    Fragment{"ceramic", kStone},
    Fragment{"d'aria", kAir},
};

std::optional<MaterialKind> KindByName(const std::string& name) {
  std::string lower = name;
  std::ranges::transform(lower, lower.begin(),
                         [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  std::optional<MaterialKind> kind;
  std::size_t first = std::string::npos;
  for (const Fragment& fragment : kFragments) {
    const std::size_t at = lower.find(fragment.text);
    if (at >= first) continue;
    first = at;
    kind = fragment.kind;
  }
  return kind;
}

constexpr double kHeaviestFoam = 150.0;
constexpr double kLightestMetal = 4000.0;

}  // namespace

MaterialKind StructuralKind(const std::string& name, double density_kg_m3) {
  if (const auto kind = KindByName(name)) return *kind;
  if (density_kg_m3 > 0.0 && density_kg_m3 < kHeaviestFoam) return kFoam;
  return density_kg_m3 > kLightestMetal ? kMetal : kGeneric;
}

MaterialKind FillingKind(const std::string& name) { return KindByName(name).value_or(kWool); }

MaterialKind ResilientKind(const std::string& name) {
  const MaterialKind kind = KindByName(name).value_or(kResilient);
  return kind == kWool ? kWool : kResilient;
}

}  // namespace velmar::presentation
