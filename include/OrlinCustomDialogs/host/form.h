#pragma once

#include <map>
#include <string>
#include <vector>

#include "OrlinCustomDialogs/host/controls.h"

// How the controls of a dialog belong together: for all that lay a dialog out, draw it or tell it in words.

namespace [[using gnu: visibility("default")]] orlin {

/// Controls that stand side by side.
using FormLine = std::vector<shown::Control*>;

/// One row of a form.
struct FormRow {
  enum class Kind {
    Field,  ///< a label, and what it names: one line, or several of which mostly one is visible
    Tall,   ///< the same for lists, tables and texts of several lines, which stand below their label
    Text,   ///< a label that names no field, perhaps with the colour that it explains
    Pair,   ///< a label, and a second one that is its value
    Mark,   ///< a check box or an option, perhaps with a label for its caption
    Frame,
    Buttons,  ///< buttons among the fields
  };
  Kind What = Kind::Field;
  shown::Control* Label = nullptr;
  std::vector<FormLine> Lines;
};

/// The form of a dialog. It depends on what the dialog declares, not on its texts, and stays the same while the dialog
/// is shown: whether a control is visible is asked of the control.
struct Form {
  std::vector<FormRow> Body;
  std::map<const shown::Control*, std::vector<FormRow>> Frames;  ///< what stands in each frame
  FormLine LeftButtons;   ///< of the button row: those that do not end the dialog
  FormLine RightButtons;  ///< OK and Cancel
  shown::Control* Status = nullptr;
  /// The label of each field that has one; fields that take turns share it, but for those with a name of their own.
  std::map<const shown::Control*, shown::Control*> Labels;

  /// What a control is called by a screen reader: by its own caption, by what the dialog declares, by its label, by the
  /// frame that it stands in, else as the dialog. With the marks of access keys.
  [[nodiscard]] std::string NameOf(const shown::Control& control) const;

  /// Whether a control is to be seen where it stands: a label of fields is while one of these is visible, everything
  /// else while it is visible itself.
  [[nodiscard]] bool Shows(const shown::Control& control) const;

  /// What a control takes: its rows, its lowest and highest number, its unit; and, where the operator cannot change it,
  /// why. One line in the operator's language, made anew with each call. Empty where there is nothing to tell, or the
  /// catalogue does not have the texts.
  [[nodiscard]] std::string HelpFor(const shown::Control& control) const;
};

[[nodiscard]] Form FormOf(const shown::Dialog& dialog);

}  // namespace orlin
