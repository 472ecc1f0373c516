#pragma once

#include <cstddef>
#include <deque>
#include <optional>

#include "elements/fields.h"
#include "elements/setup.h"

namespace velmar::calculation {

/// What a change of the set-up was about.
enum class StepKind {
  kField,        ///< one field, see Step::field
  kCount,        ///< the number of layers of a group, or of components
  kCalculation,  ///< another calculation was chosen
  kName,         ///< name of the base element or of a component
  kDescription,  ///< their description
  kBands,        ///< several bands of one of them
  kInformation,  ///< the project's information
  kRequirement,  ///< the required rating
  kSeveral,      ///< more than one thing, as when a part is taken from a database

  // What only the one who does it can name. `field` has the group and the row of a layer, or the number of a
  // component in `index`.
  kLayerInserted,
  kLayerDuplicated,
  kLayerRemoved,
  kLayerMoved,
  kLayersPasted,
  kLeafMirrored,
  kElementTurned,
  kComponentAdded,
  kComponentDuplicated,
  kComponentRemoved,
  kComponentMoved,
  kVariantFixed,
  kVariantRenamed,
  kVariantMoved,
  kVariantRemoved,
  kVariantTaken,  ///< the set-up went back to a variant
};

/// A change of the set-up that is undone at once.
struct Step {
  StepKind kind = StepKind::kSeveral;
  /// The field; of a count the group alone; of a name, a description or bands the element in `index`.
  elements::FieldId field{};

  bool operator==(const Step&) const = default;
};

/// What differs between two set-ups, as a user would name it: a material that brings its thickness along is a
/// change of the material, a cavity that follows its contents is a change of the contents. Nothing where the
/// set-ups are the same.
std::optional<Step> StepBetween(const elements::Setup& before, const elements::Setup& after);

/// The set-ups that the open one has been, to go back and forth in. Typing in one field is one step until the
/// field is left; a change behind which nothing differs is none.
class History {
 public:
  static constexpr std::size_t kMostSteps = 1000;

  /// The set-up was `before` and is `after` now. What was undone cannot be redone any longer.
  /// @param named what was done, where that is more than the difference tells; it is a step of its own
  void Note(const elements::Setup& before, const elements::Setup& after,
            const std::optional<Step>& named = std::nullopt);

  /// The field is left: the next change is a step of its own.
  void EndStep() { open_ = false; }
  /// Whether the last step may still go on.
  bool IsOpen() const { return open_; }
  /// Another one for each step that is made, taken back or done again; the same while one is being typed.
  std::size_t StepNumber() const { return step_number_; }

  /// The step that Undo() takes back; nothing: there is none.
  std::optional<Step> ToUndo() const;
  /// The step that Redo() does again.
  std::optional<Step> ToRedo() const;

  /// @param current the set-up as it is now
  /// @return the set-up before the last step
  /// @throws std::logic_error when there is none
  elements::Setup Undo(const elements::Setup& current);
  /// The set-up after the step that was undone last.
  /// @throws std::logic_error when there is none
  elements::Setup Redo(const elements::Setup& current);

  /// Forgets everything, as when a project is opened.
  void Clear();

 private:
  struct Entry {
    Step step{};
    elements::Setup other{};  ///< before the step, of those to undo; after it, of those to redo
  };

  std::deque<Entry> undone_from_{};  ///< the last one at the back
  std::deque<Entry> redone_from_{};  ///< the next one at the back
  bool open_ = false;                ///< the last step goes on with a change of the same field
  std::size_t step_number_ = 0;
};

}  // namespace velmar::calculation
