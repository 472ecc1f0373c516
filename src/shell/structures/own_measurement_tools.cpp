#include "shell/structures/own_measurement_tools.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <algorithm>
#include <utility>
#include <variant>

#include "foundation/message_rows.h"
#include "measurements/band_text.h"
#include "measurements/measurement_entry.h"
#include "measurements/test_table.h"
#include "presentation/texts/words.h"
#include "shell/structures/store_sources.h"
#include "shell/windows/phrases.h"
#include "storage/files/whole_file.h"

namespace velmar::structures {
namespace {

constexpr std::size_t kTextSizeLimit = std::size_t{64} * 1024 * 1024;
constexpr std::size_t kLongestRefusal = 12;  ///< lines of a box that still fits the screen

bool IsCalculated(Branch branch) {
  return branch == Branch::kCalculatedWalls || branch == Branch::kCalculatedFloors ||
         branch == Branch::kCalculatedLinings;
}

/// The one test of an analyser's text, named after its file.
std::variant<std::vector<storage::MeasuredTest>, measurements::RefusedText> TestOfText(
    const storage::LibraryFolder& folder, const std::string& text, const std::string& name) {
  const auto read = measurements::ReadBandText(text, folder.band_prefix);
  if (const auto* refused = std::get_if<measurements::RefusedText>(&read)) return *refused;
  measurements::MeasurementEntry entry;
  entry.name = name;
  const auto checked = measurements::TestOf(
      folder, measurements::WithBands(std::move(entry), std::get<measurements::BandText>(read)));
  if (const auto* refusal = std::get_if<measurements::MeasurementRefusal>(&checked))
    return measurements::RefusedText{refusal->message};
  return std::vector<storage::MeasuredTest>{std::get<storage::MeasuredTest>(checked)};
}

}  // namespace

OwnMeasurementTools::OwnMeasurementTools(const shell::WindowTools& tools, OwnMeasurementSource own,
                                         QWidget* parent)
    : QWidget(parent), tools_(tools), own_(std::move(own)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  const auto add = [&](const char* name, MessageRow text, MessageRow tip, auto action) {
    auto* button = new QPushButton(tools_.Text(text), this);
    button->setObjectName(QLatin1String(name));
    if (tip.number != 0) button->setToolTip(tools_.Text(tip));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, action);
    row->addWidget(button);
    return button;
  };
  QPushButton* enter =
      add("CommandNuovaMisura", kNewMeasurementRow, kNewMeasurementTipRow, [this] { EnterNew(Current()); });
  enter->setText(enter->text() + QStringLiteral("…"));
  edit_ = add("CommandModificaMisura", kEditMeasurementRow, kShippedReadOnlyRow, [this] { Edit(); });
  delete_ = add("CommandEliminaMisura", kDeleteMeasurementRow, kShippedReadOnlyRow, [this] { Delete(); });
  undo_ = add("CommandAnnullaElimina", kUndoDeleteRow, {}, [this] { UndoDelete(); });
  row->addStretch(1);
  import_ = add("CommandImporta", kImportMeasurementsRow, kImportMeasurementsTipRow, [this] { Import(); });
  export_ = add("CommandEsporta", kExportMeasurementsRow, kExportMeasurementsTipRow, [this] { Export(); });
  import_->setVisible(static_cast<bool>(tools_.boxes.choose_file_to_open));
  export_->setVisible(static_cast<bool>(tools_.boxes.choose_file_to_save));
  ShowButtons();
}

Branch OwnMeasurementTools::Current() const {
  return file_ && !IsCalculated(file_->branch) ? file_->branch : Branch::kWalls;
}

void OwnMeasurementTools::ShowFile(const std::optional<LibraryFile>& file) {
  file_ = file;
  name_.reset();
  ShowButtons();
}

void OwnMeasurementTools::ShowTest(const std::optional<std::string>& name) {
  name_ = name;
  ShowButtons();
}

void OwnMeasurementTools::ShowButtons() {
  const bool own = file_ && own_.holds(*file_);
  edit_->setEnabled(own && name_);
  delete_->setEnabled(own && name_);
  export_->setEnabled(own);
  undo_->setEnabled(deleted_.has_value());
}

void OwnMeasurementTools::EnterNew(Branch branch) { Open({branch, std::nullopt}); }

void OwnMeasurementTools::Edit() {
  if (!file_ || !name_) return;
  std::vector<storage::MeasuredTest> tests;
  if (!tools_.Try([&] { tests = own_.all(file_->branch); })) return;
  const auto found = std::ranges::find(tests, *name_, &storage::MeasuredTest::name);
  if (found == tests.end()) {
    tools_.Tell(tools_.Text(Message{{kMeasurementGoneRow, " " + *name_}}));
    return;
  }
  Open({file_->branch, *found});
}

void OwnMeasurementTools::Open(MeasurementToEdit edited) {
  auto* editor = new MeasurementEditor(tools_, own_, std::move(edited), this);
  editor->setAttribute(Qt::WA_DeleteOnClose);
  editor->setWindowModality(Qt::WindowModal);
  connect(editor, &QDialog::accepted, this,
          [this, editor] { emit Changed(editor->Kind(), shell::FromUtf8(editor->StoredName())); });
  editor->show();
}

void OwnMeasurementTools::Delete() {
  if (!file_ || !name_) return;
  const Branch branch = file_->branch;
  std::optional<storage::MeasuredTest> removed;
  if (!tools_.Try([&] { removed = own_.remove(branch, *name_); })) return;
  if (removed) {
    deleted_ = Deleted{branch, *std::move(removed)};
  } else {
    tools_.Tell(tools_.Text(Message{{kMeasurementGoneRow, " " + *name_}}));
  }
  emit Changed(branch, QString());
  ShowButtons();
}

void OwnMeasurementTools::UndoDelete() {
  if (!deleted_) return;
  std::optional<Message> refusal;
  if (!tools_.Try([&] { refusal = own_.add(deleted_->branch, {deleted_->test}); })) return;
  if (refusal) {
    tools_.Tell(tools_.Text(*refusal));
    return;
  }
  const Deleted back = *std::exchange(deleted_, std::nullopt);
  emit Changed(back.branch, shell::FromUtf8(back.test.name));
  ShowButtons();
}

void OwnMeasurementTools::Import() {
  const QString file = tools_.boxes.choose_file_to_open(
      {tools_.Text(kImportMeasurementsRow),
       tools_.Text(kNotReadTextFileRow) + QStringLiteral(" (*.csv *.txt *.tsv *.asc);;* (*)"),
       {}});
  if (file.isEmpty()) return;
  const Branch branch = Current();
  tools_.Try([&] {
    const storage::LibraryFolder folder = FolderOf(branch);
    const std::string text =
        measurements::TextOfFile(storage::ReadWhole(shell::ToUtf8(file), kTextSizeLimit));
    const auto read = measurements::IsTestTable(text)
                          ? measurements::ReadTestTable(folder, text)
                          : TestOfText(folder, text, shell::ToUtf8(QFileInfo(file).completeBaseName()));
    if (const auto* refused = std::get_if<measurements::RefusedText>(&read)) {
      Message told{{kNothingTakenRow}};
      const std::size_t shown = std::min(refused->lines.size(), kLongestRefusal);
      told.insert(told.end(), refused->lines.begin(),
                  refused->lines.begin() + static_cast<std::ptrdiff_t>(shown));
      if (shown < refused->lines.size()) told.push_back({std::string("…")});
      tools_.Tell(tools_.Text(told));
      return;
    }
    const auto& tests = std::get<std::vector<storage::MeasuredTest>>(read);
    if (const auto refusal = own_.add(branch, tests)) {
      tools_.Tell(tools_.Text(*refusal));
      return;
    }
    emit Changed(branch, shell::FromUtf8(tests.front().name));
  });
}

void OwnMeasurementTools::Export() {
  if (!file_) return;
  const QString file =
      tools_.boxes.choose_file_to_save({tools_.Text(kExportMeasurementsRow), QStringLiteral("CSV (*.csv)"),
                                        shell::FromUtf8(file_->name) + QStringLiteral(".csv")});
  if (file.isEmpty()) return;
  tools_.Try([&] {
    storage::WriteWhole(shell::ToUtf8(file),
                        measurements::FormatTestTable(FolderOf(file_->branch), own_.all(file_->branch)));
  });
}

}  // namespace velmar::structures
