#pragma once

#include <map>
#include <vector>

#include "OrlinCustomDialogs/host/controls.h"

namespace orlin {

/// Controls that stand side by side.
using FormLine = std::vector<shown::Control*>;

/// One row of a form.
struct FormRow {
  enum class Kind {
    Field,  ///< a label, and what it names: one line, or several of which mostly one is visible
    Tall,   ///< the same for lists, tables and texts of several lines, which stand below their label
    Text,   ///< a label that names no field
    Pair,   ///< a label, and a second one that is its value
    Mark,   ///< a check box or an option, perhaps with a label for its caption
    Frame,
    Buttons,  ///< buttons among the fields
  };
  Kind What = Kind::Field;
  shown::Control* Label = nullptr;
  std::vector<FormLine> Lines;
};

/// How the controls of a dialog, or of a frame in it, are laid out: read from their kinds and their order.
struct FormPlan {
  std::vector<FormRow> Rows;
};

/// The parts of a dialog that stand in fixed places.
struct DialogPlan {
  FormPlan Body;
  std::map<const shown::Control*, FormPlan> Frames;
  FormLine LeftButtons;   ///< of the button row: those that do not end the dialog
  FormLine RightButtons;  ///< OK and Cancel
  shown::Control* Status = nullptr;
  /// The label of each field that has one; fields that take turns share it.
  std::map<const shown::Control*, shown::Control*> Labels;
};

[[nodiscard]] DialogPlan PlanDialog(const shown::Dialog& dialog);

}  // namespace orlin
