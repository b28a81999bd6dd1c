#include "OrlinCustomDialogs/notes.h"

#include "frame/classes/public_class_of.h"
#include "frame/dialog/display_protocol.h"
#include "frame/values/conversions.h"
#include "notes/frmPanelNotes.h"
#include "registers.h"

namespace orlin {

std::int32_t clsPanelNotes::Display(const Value& PanelGUID, const Value& NoteHeader, const Value& NoteTypeID,
                                    std::string& Content, Value& FirstLine, const Value& IsInMemory) {
  return CallDialogWith<frmPanelNotes>([&](auto& dialog) {
    return dialog.Display(ToText(PanelGUID), ToText(NoteHeader), ToLong(NoteTypeID), Content, FirstLine,
                          ToBoolean(IsInMemory));
  });
}

std::vector<PublicClass> NotesClasses() {
  return {PublicClassOf("clsPanelNotes", &clsPanelNotes::Display,
                        {"PanelGUID", "NoteHeader", "NoteTypeID", "Content", "FirstLine", "IsInMemory"})};
}

}  // namespace orlin
