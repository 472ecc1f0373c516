#pragma once

#include <memory>
#include <optional>

#include "shell/material_editors/structural_editor.h"
#include "tests/shell/material_editors/editor_fixture.h"

namespace velmar::material_editors {

inline storage::StructuralRow Brick() {
  storage::StructuralRow row;
  row.record.values.name = "Mattone";
  row.record.values.description = "pieno";
  row.record.values.thickness_mm = 120.0;
  row.record.values.density_kg_m3 = 1800.0;
  row.record.values.surface_mass_kg_m2 = 216.0;
  row.record.values.youngs_modulus_gpa = 12.6;
  row.record.values.critical_frequency_hz = 209.5;
  row.record.values.loss_factor = 0.01;
  row.record.values.poissons_ratio = 0.2;
  row.record.values.thermal_conductivity_w_mk = 0.8;
  row.record.nulls = {&elements::StructuralMaterial::thermal_resistance_m2k_w};
  row.keyword = "murature";
  row.source = "tabella";
  return row;
}

class StructuralEditorTest : public EditorFixture {
 protected:
  StructuralEditor& Open(const char* name = "") {
    std::optional<storage::StructuralRow> row;
    if (*name != '\0') row = store_.Find<elements::StructuralMaterial>(name);
    window_ = std::make_unique<StructuralEditor>(
        Tools(), EditedMaterial<elements::StructuralMaterial>(store_, texts_, std::move(row)),
        SuggestedKeywords(store_, elements::MaterialFamily::kStructural, texts_));
    Show(*window_);
    return *window_;
  }
  void FillIn() {
    Type(*window_, "Text1", "Gesso");
    Type(*window_, "Text3", "12,5");
    Type(*window_, "Text4", "900");
    Type(*window_, "Text6", "2.5");
    Type(*window_, "Text8", "0,01");
  }
  void Save() { Press(*window_, "Command1"); }
  std::optional<storage::StructuralRow> Stored(const char* name) {
    return store_.Find<elements::StructuralMaterial>(name);
  }
  std::string Focused() {
    return window_->focusWidget() == nullptr ? "" : window_->focusWidget()->objectName().toStdString();
  }

  std::unique_ptr<StructuralEditor> window_;
};

}  // namespace velmar::material_editors
