#include "tests/shell/main_window/one_truth.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <cmath>

#include "elements/layer_groups.h"
#include "foundation/decimal.h"
#include "presentation/drawing/section.h"
#include "shell/fields/name_box.h"
#include "shell/fields/searched_box.h"

namespace velmar::shell {
namespace {

using elements::LayerGroup;
using elements::Setup;

/// A layer row as a set-up holds it.
struct HeldRow {
  std::string listed{};
  std::string material{};
  std::string thickness_text{};
  double thickness_mm = 0.0;
  int sheets = 1;

  bool operator==(const HeldRow&) const = default;
};

template <typename Row>
HeldRow Held(const Row& row) {
  return {row.listed, row.slot.name, row.thickness_text, row.slot.thickness_mm, row.multiplicity};
}

/// The rows of a group and their controls, told once more beside the program's own table.
struct GroupControls {
  const char* name = "";
  const char* list = "";
  const char* thickness = "";
  const char* sheets = "";
  LayerGroup group{};
  std::vector<HeldRow> (*held)(const Setup& setup) = nullptr;
};

template <typename Rows>
std::vector<HeldRow> First(const Rows& rows, int count) {
  std::vector<HeldRow> held;
  for (std::size_t i = 0; i < rows.size() && static_cast<int>(i) < count; ++i) held.push_back(Held(rows[i]));
  return held;
}

const std::vector<GroupControls>& Groups() {
  static const std::vector<GroupControls> groups = {
      {"Parete 1", "Combo3", "Text5", "Combo2", LayerGroup::kLeaf1,
       [](const Setup& s) { return First(s.leaf1.rows, s.leaf1.count); }},
      {"Parete 2", "Combo4", "Text6", "Combo6", LayerGroup::kLeaf2,
       [](const Setup& s) { return First(s.leaf2.rows, s.leaf2.count); }},
      {"Intercapedine", "Combo9", "Text26", "Combo17", LayerGroup::kCavity,
       [](const Setup& s) {
         const bool generic = s.cavity.kind == elements::CavityKind::kGenericMaterial;
         return First(s.cavity.layers.rows, generic ? s.cavity.layers.count : 0);
       }},
      {"Mat. resiliente", "Combo11", "Text10", "Combo13", LayerGroup::kResilient,
       [](const Setup& s) { return First(s.resilient.rows, s.resilient.count); }},
      {"Parete 1 SEA", "ComboMatNormaleSEA1", "TextSpessoreMatSEA1", "", LayerGroup::kSeaLeaf1,
       [](const Setup& s) { return First(s.sea_leaf1.rows, s.sea_leaf1.count); }},
      {"Parete 2 SEA", "ComboMatNormaleSEA2", "TextSpessoreMatSEA2", "", LayerGroup::kSeaLeaf2,
       [](const Setup& s) { return First(s.sea_leaf2.rows, s.sea_leaf2.count); }},
      {"Fibra SEA", "ComboMatFibraIntercSEA", "TextSpessoreMatFibraIntercSEA", "",
       LayerGroup::kSeaCavityFibre,
       [](const Setup& s) { return First(s.sea_cavity.fibres, FibreCount(s.sea_cavity.type)); }},
      {"Massa SEA", "ComboMatMassaIntercSEA", "TextSpessoreMatMassaIntercSEA", "", LayerGroup::kSeaCavityMass,
       [](const Setup& s) { return First(s.sea_cavity.masses, MassCount(s.sea_cavity.type)); }},
  };
  return groups;
}

/// A check that brings a layer, and the layer.
struct DampingControls {
  const char* check = "";
  const char* list = "";
  const char* thickness = "";
  const elements::DampingRow* (*held)(const Setup& setup, std::size_t index) = nullptr;
};

const std::vector<DampingControls>& Damping() {
  static const std::vector<DampingControls> damping = {
      {"ChecklMatSmorzanteSEA1", "ComboMatSmorzanteSEA1", "TextSpessoreMatSmorzanteSEA1",
       [](const Setup& s, std::size_t i) {
         return static_cast<int>(i) < 2 * s.sea_leaf1.count ? &s.sea_leaf1.damping.at(i) : nullptr;
       }},
      {"ChecklMatSmorzanteSEA2", "ComboMatSmorzanteSEA2", "TextSpessoreMatSmorzanteSEA2",
       [](const Setup& s, std::size_t i) {
         return static_cast<int>(i) < 2 * s.sea_leaf2.count ? &s.sea_leaf2.damping.at(i) : nullptr;
       }},
      {"ChecklMatSmorzanteIntercSEA", "ComboMatSmorzIntercSEA", "TextSpessoreMatSmorzIntercSEA",
       [](const Setup& s, std::size_t i) {
         return static_cast<int>(i) < MassCount(s.sea_cavity.type) ? &s.sea_cavity.mass_damping.at(i)
                                                                   : nullptr;
       }},
  };
  return damping;
}

QString Qt8(const std::string& text) { return QString::fromStdString(text); }

/// Looks at the controls of the tabs that are shown.
class Look {
 public:
  explicit Look(const WindowFixture& fixture)
      : fixture_(fixture), tabs_(fixture.Find<QTabWidget>("SSTab1")), setup_(fixture.open.Setup()) {}

  QString Untruth() {
    for (const GroupControls& group : Groups()) LookAt(group);
    for (const DampingControls& damping : Damping()) LookAt(damping);
    LookAtCavities();
    LookAtElements();
    LookAtHeader();
    LookAtSection();
    return untruth_;
  }

 private:
  /// The control `name` where the user may see it, on this page or on one that is a click away.
  template <typename Widget>
  Widget* Shown(const QString& name) const {
    auto* widget = fixture_.window->findChild<Widget*>(name);
    if (widget == nullptr) return nullptr;
    for (int tab = 0; tab < tabs_->count(); ++tab) {
      if (!tabs_->widget(tab)->isAncestorOf(widget)) continue;
      return tabs_->isTabVisible(tab) && widget->isVisibleTo(tabs_->widget(tab)) ? widget : nullptr;
    }
    return widget->isVisibleTo(fixture_.window.get()) ? widget : nullptr;
  }

  static bool IsTypedIn(const QWidget* widget) {
    // A list of hits that lies over the window takes the focus with it where there is no screen.
    const auto* searched = qobject_cast<const SearchedBox*>(widget);
    if (searched != nullptr && searched->IsTyped()) return true;
    const auto* named = qobject_cast<const NameBox*>(widget);
    if (named != nullptr && named->lineEdit()->isModified()) return true;
    const QWidget* focus = widget->window()->focusWidget();
    return focus != nullptr && (focus == widget || widget->isAncestorOf(focus));
  }

  void Expect(const QString& where, const QString& shown, const QString& held) {
    if (untruth_.isEmpty() && shown != held)
      untruth_ = QString("%1 shows \"%2\", the set-up holds \"%3\"").arg(where, shown, held);
  }

  void ExpectText(const QString& name, const std::string& held) {
    const auto* box = Shown<QComboBox>(name);
    if (box != nullptr && !IsTypedIn(box)) Expect(name, box->currentText(), Qt8(held));
  }

  /// A number may be shown with fewer decimals; an unknown one has no text.
  void ExpectNumber(const QString& name, const std::string& held, double tolerance = 0.0) {
    const auto* field = Shown<QLineEdit>(name);
    if (field == nullptr || IsTypedIn(field) || field->text() == Qt8(held)) return;
    const auto shown = ParseDecimal(field->text().toStdString());
    const auto number = ParseDecimal(held);
    if (shown && number && std::abs(*shown - *number) <= tolerance) return;
    Expect(name, field->text(), Qt8(held));
  }

  void ExpectTick(const QString& name, bool held) {
    const auto* button = Shown<QAbstractButton>(name);
    if (button != nullptr) Expect(name, button->isChecked() ? "ticked" : "not", held ? "ticked" : "not");
  }

  void LookAtRow(const QString& list, const QString& thickness, const HeldRow& row) {
    ExpectText(list, row.listed);
    ExpectNumber(thickness, row.thickness_text);
    Expect(list + ", its layer", Qt8(row.listed), Qt8(row.material));
    const auto number = ParseDecimal(row.thickness_text);
    if (number)
      Expect(thickness + ", its layer", Qt8(FormatShortest(*number)), Qt8(FormatShortest(row.thickness_mm)));
  }

  void LookAt(const GroupControls& group) {
    const std::vector<HeldRow> rows = group.held(setup_);
    int shown = 0;
    for (int i = 0; fixture_.window->findChild<QComboBox*>(Name(group.list, i)) != nullptr; ++i) {
      if (Shown<QComboBox>(Name(group.list, i)) == nullptr) continue;
      ++shown;
      if (i >= static_cast<int>(rows.size())) break;
      const HeldRow& row = rows.at(static_cast<std::size_t>(i));
      LookAtRow(Name(group.list, i), Name(group.thickness, i), row);
      if (*group.sheets != '\0') ExpectText(Name(group.sheets, i), std::to_string(row.sheets));
    }
    if (shown > 0) Expect(group.name, QString::number(shown), QString::number(rows.size()));
  }

  void LookAt(const DampingControls& damping) {
    for (std::size_t i = 0; i < 6; ++i) {
      const QString check = Name(damping.check, static_cast<int>(i));
      if (fixture_.window->findChild<QAbstractButton*>(check) == nullptr) return;
      const elements::DampingRow* held = damping.held(setup_, i);
      if (Shown<QAbstractButton>(check) == nullptr) continue;
      if (held == nullptr) return Expect(check, "shown", "not in use");
      ExpectTick(check, held->ticked);
      if (held->ticked)
        LookAtRow(Name(damping.list, static_cast<int>(i)), Name(damping.thickness, static_cast<int>(i)),
                  Held(held->row));
    }
  }

  void LookAtCavities() {
    ExpectNumber("Text9", setup_.cavity.depth_text);
    ExpectNumber("Text31", setup_.cavity.fibre_text);
    for (int kind = 0; kind < 3; ++kind)
      ExpectTick(Name("Option2", kind), static_cast<int>(setup_.cavity.kind) == kind);
    ExpectText("Combo18", std::to_string(setup_.cavity.layers.count));
    ExpectText("Combo1", std::to_string(setup_.leaf1.count));
    ExpectText("Combo5", std::to_string(setup_.leaf2.count));
    ExpectText("Combo12", std::to_string(setup_.resilient.count));
    ExpectText("ComboMatSEA1", std::to_string(setup_.sea_leaf1.count));
    ExpectText("ComboMatSEA2", std::to_string(setup_.sea_leaf2.count));
    ExpectNumber("TextSpessoreIntercSEA", setup_.sea_cavity.depth_text);
    if (const auto* type = Shown<QComboBox>("ComboTipoIntercSEA"))
      Expect("ComboTipoIntercSEA", QString::number(type->currentIndex()),
             QString::number(static_cast<int>(setup_.sea_cavity.type)));
  }

  void LookAtElements() {
    constexpr double kShownDecimal = 0.05 + 1e-9;
    const elements::BaseElement& base = setup_.base;
    ExpectText("Combo14", base.name);
    ExpectNumber("Text7", base.area_text);
    ExpectNumber("Text25", base.rating_text, kShownDecimal);
    ExpectNumber("Text27", base.c_text, kShownDecimal);
    ExpectNumber("Text28", base.ctr_text, kShownDecimal);
    for (std::size_t band = 0; band < base.band_texts.size(); ++band)
      ExpectNumber(Name("Text13", static_cast<int>(band)), base.band_texts[band], kShownDecimal);
    ExpectText("Combo15", setup_.facade.count_text);
    for (const char* check : {"Check1", "Check2"}) ExpectTick(check, setup_.facade.simplified);
    for (int i = 0; i < setup_.facade.Count(); ++i) {
      const auto& component = setup_.facade.components.at(static_cast<std::size_t>(i));
      ExpectText(Name("Combo16", i), component.name);
      ExpectNumber(Name("Text23", i), component.area_text);
      ExpectNumber(Name("Text24", i), component.rating_text, kShownDecimal);
      ExpectNumber(Name("Text29", i), component.c_text, kShownDecimal);
      ExpectNumber(Name("Text30", i), component.ctr_text, kShownDecimal);
      const QString bands = i == 0 ? QString("Text12") : "Text" + QString::number(13 + i);
      for (std::size_t band = 0; band < component.band_texts.size(); ++band)
        ExpectNumber(bands + '_' + QString::number(band), component.band_texts[band], kShownDecimal);
      if (const auto* tightness = Shown<QComboBox>(Name("ComboTenutaAria", i)))
        Expect("ComboTenutaAria", QString::number(tightness->currentIndex()),
               QString::number(component.tightness_class));
    }
  }

  void LookAtHeader() {
    ExpectNumber("Text8", setup_.support_distance_text);
    ExpectTick("CheckDesolidarizza", setup_.decoupled);
    if (const auto* hanger = Shown<QComboBox>("ComboTipoAppendino"))
      Expect("ComboTipoAppendino", QString::number(hanger->currentIndex()), QString::number(setup_.hanger));
    if (const auto* width = Shown<QLabel>("Text1")) Expect("Text1", width->text(), Qt8(setup_.width_text));
  }

  // Each numbered strip is a row that is shown, with its number and its material.
  void LookAtSection() {
    // The rows of a free list of layers have a test of their own.
    if (!setup_.calculation || setup_.calculation == elements::Calculation::kMultilayerGeneric) return;
    for (const presentation::Strip& strip : presentation::SectionOf(setup_).strips) {
      if (strip.number == 0 || !strip.place.group) continue;
      const elements::LayerGroupRow& group = RowOf(*strip.place.group);
      const bool is_fibre = *strip.place.group == elements::LayerGroup::kCavity &&
                            setup_.cavity.kind == elements::CavityKind::kFibrous;
      if (is_fibre) {
        const auto* number = Shown<QLabel>("NumeroFibra");
        if (number != nullptr) Expect("NumeroFibra", number->text(), "n. " + QString::number(strip.number));
        continue;
      }
      const QString list = Name(std::string(group.list).c_str(), strip.place.row);
      const auto* box = Shown<QComboBox>(list);
      if (box == nullptr) return Expect("the section", "layer " + QString::number(strip.number), "no row");
      if (!IsTypedIn(box))
        Expect("the section, layer " + QString::number(strip.number), Qt8(strip.name), box->currentText());
      const auto* number = Shown<QLabel>("Numero" + list);
      if (number != nullptr)
        Expect("Numero" + list, number->text().section(' ', 0, 0), QString::number(strip.number));
    }
  }

  static QString Name(const char* array, int index) { return QString(array) + '_' + QString::number(index); }

  const WindowFixture& fixture_;
  const QTabWidget* tabs_;
  const Setup& setup_;
  QString untruth_;
};

}  // namespace

QString Untruth(const WindowFixture& fixture) {
  return fixture.open.Setup().calculation ? Look(fixture).Untruth() : QString();
}

QString LostBySaving(const WindowFixture& fixture, const QString& file) {
  const Setup& setup = fixture.open.Setup();
  if (!setup.calculation) return {};
  fixture.services.write_project(file.toStdString(), setup);
  const Setup read = fixture.services.read_project(file.toStdString());
  for (const GroupControls& group : Groups()) {
    const auto* box = fixture.Find<QComboBox>(QString(group.list) + "_0");
    const auto* tabs = fixture.Find<QTabWidget>("SSTab1");
    bool shown = false;
    for (int tab = 0; tab < tabs->count(); ++tab)
      shown = shown || (tabs->isTabVisible(tab) && tabs->widget(tab)->isAncestorOf(box));
    if (!shown) continue;
    const std::vector<HeldRow> before = group.held(setup);
    const std::vector<HeldRow> after = group.held(read);
    if (before.size() != after.size()) return QString("%1: rows").arg(group.name);
    for (std::size_t i = 0; i < before.size(); ++i) {
      if (before[i].material != after[i].material || before[i].thickness_mm != after[i].thickness_mm ||
          before[i].sheets != after[i].sheets)
        return QString("%1, row %2").arg(group.name).arg(i + 1);
    }
  }
  return {};
}

}  // namespace velmar::shell
