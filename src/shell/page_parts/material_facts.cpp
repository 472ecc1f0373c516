#include "shell/page_parts/material_facts.h"

#include <QStringList>

#include "foundation/decimal.h"
#include "foundation/rounding.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

QString Told(double value, const char* unit) {
  return FromUtf8(FormatShortest(RoundToEven(value, 1))) + ' ' + QString::fromUtf8(unit);
}

template <typename Material>
void AddBoth(QStringList& facts, const Material& material) {
  if (material.density_kg_m3 > 0.0) facts += Told(material.density_kg_m3, "kg/m³");
  if (material.thickness_mm > 0.0) facts += Told(material.thickness_mm, "mm");
}

}  // namespace

QString MaterialFacts(const elements::MaterialLookup& materials, elements::MaterialFamily family,
                      const std::string& name) {
  QStringList facts;
  switch (family) {
    case elements::MaterialFamily::kStructural:
      if (const auto row = materials.structural(name)) AddBoth(facts, row->values);
      break;
    case elements::MaterialFamily::kFibrous:
      if (const auto row = materials.fibrous(name)) {
        if (row->values.porous && row->values.flow_resistance_pa_s_m > 0.0)
          facts += "Rs " + Told(row->values.flow_resistance_pa_s_m, "Pa s/m");
        AddBoth(facts, row->values);
      }
      break;
    case elements::MaterialFamily::kResilient:
      if (const auto row = materials.resilient(name)) {
        if (row->values.dynamic_stiffness_mn_m3 > 0.0)
          facts += "s' " + Told(row->values.dynamic_stiffness_mn_m3, "MN/m³");
        AddBoth(facts, row->values);
      }
      break;
  }
  return facts.join(QStringLiteral(" · "));
}

}  // namespace velmar::shell
