#include "notes/frmPanelNotes.h"

#include "OrlinCustomDialogs/written_text.h"

#include "frame/dialog/display_protocol.h"
#include "frame/services/modGeneral.h"
#include "frame/services/modStoreObj.h"
#include "frame/services/services.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

// The table, and the entry of the data list.
constexpr const char* kPanelNotes = "PanelNotes";
// The only kind of note that is written to the store.
constexpr std::int32_t kStoredNoteType = 3;

constexpr std::string_view kLineEnd = "\r\n";

/// What names the row of one text.
struct NoteKey {
  std::string PanelGUID;
  std::string NoteHeader;
  std::int32_t NoteTypeID;
};

/// A value as it stands between the quotation marks of a query: one that holds such marks must not end there.
std::string Quoted(std::string text) {
  for (auto at = text.find('\''); at != std::string::npos; at = text.find('\'', at + 2)) text.insert(at, 1, '\'');
  return text;
}

std::string QueryFor(const NoteKey& key) {
  return std::string("SELECT * FROM [") + kPanelNotes + "]" + " WHERE [PanelGUID] = '" + Quoted(key.PanelGUID) + "'" +
         " AND [NoteHeader] = '" + Quoted(key.NoteHeader) + "'" +
         " AND [NoteTypeID] = " + std::to_string(key.NoteTypeID);
}

/// Closes what it holds in the end.
template <class Ptr>
struct Closing {
  Closing() = default;
  Closing(const Closing&) = delete;
  Closing& operator=(const Closing&) = delete;
  ~Closing() {
    SkipFailure([this] {
      if (Held != nullptr) Held->Close();
    });
  }
  auto* operator->() const { return Held.get(); }

  Ptr Held;
};

/// The row of one text in the account store, open as long as this lives.
class StoredNotes {
 public:
  StoredNotes(const NoteKey& key, DListComponent::Mode mode) {
    // Where notes are read, a file has to be there; the first note that is stored makes it.
    Store().SetMakesMissingFile(mode == DListComponent::Writing);
    // One that does not open is not closed.
    DatabasePtr db;
    RaiseResult(OpenSecureDB(kPanelNotes, db, false));
    db_.Held = db;
    RaiseResult(Store().CreateDynaWise(db_.Held, rs_.Held, QueryFor(key), kRows, kPanelNotes, mode));
  }

  /// An empty text where there is no row.
  [[nodiscard]] std::string Memo() { return rs_->Eof() ? std::string() : ToText(rs_->Fields("Memo").Value()); }

  void Delete() {
    if (!rs_->Eof()) RaiseResult(Store().DeleteDsWise(rs_.Held, kRows, ""));
  }

  void Save(const NoteKey& key, const std::string& memo) {
    RaiseResult(rs_->Eof() ? Store().AddNewDsWise(rs_.Held, kRows, "") : Store().EditDsWise(rs_.Held, kRows, ""));
    rs_->Fields("PanelGUID").SetValue(key.PanelGUID);
    rs_->Fields("NoteHeader").SetValue(key.NoteHeader);
    rs_->Fields("NoteTypeID").SetValue(key.NoteTypeID);
    rs_->Fields("Memo").SetValue(memo);
    RaiseResult(Store().UpdateDsWise(rs_.Held, kRows, ""));
  }

 private:
  static constexpr std::int16_t kRows = DListComponent::kDynamicRows;

  Closing<DatabasePtr> db_;
  Closing<RecordsetPtr> rs_;
};

}  // namespace

frmPanelNotes::frmPanelNotes() {
  Form.OnActivate = [this] { Form_Activate(); };
  cmdAddNote.Click = [this] { cmdAddNote_Click(); };
  cmdDateTime.Click = [this] { cmdDateTime_Click(); };
}

std::int32_t frmPanelNotes::Display(const std::string& PanelGUID, const std::string& NoteHeader,
                                    std::int32_t NoteTypeID, std::string& Content, Value& FirstLine, bool IsInMemory) {
  const NoteKey key{PanelGUID, NoteHeader, NoteTypeID};
  DisplaySteps steps;
  steps.Prepare = [&] {
    RaiseResult(InitApplicationVariables());
    txtPanelNotes.SetText(IsInMemory ? Content : StoredNotes(key, DListComponent::Reading).Memo());
    Form.SetCaption(GetLocalText(1378, "TITLE", NoteHeader));
  };
  steps.Conclude = [&] {
    const auto notes = txtPanelNotes.Text();
    const bool confirmed = Form.ExitCode() == ExitCode::OK;
    if (confirmed) {
      StoredNotes stored(key, DListComponent::Writing);
      if (NoteTypeID == kStoredNoteType) notes.empty() ? stored.Delete() : stored.Save(key, notes);
      FirstLine = notes.substr(0, notes.find(kLineEnd));
    }
    // On Cancel too, but not where the store failed.
    Content = notes;
    return confirmed ? kConfirmed : kNotConfirmed;
  };
  steps.Report = [](const Failure& failure) {
    ReportFault({"frmPanelNotes", "Display()", true}, failure, failure.Description());
  };
  return RunDisplay(Form, steps);
}

void frmPanelNotes::Form_Activate() {
  SkipFailure([&] { txtNote.SetFocus(); });
}

void frmPanelNotes::cmdAddNote_Click() {
  const auto notes = txtPanelNotes.Text();
  const auto note = txtNote.Text();
  if (CharacterCount(note) > kMostCharacters - CharacterCount(notes)) {
    Form.ShowMessage(GetLocalText(1376), Message::OkOnly, GetLocalText(1377));
    return;
  }
  SkipFailure([&] { txtPanelNotes.SetSelStart(CharacterCount(notes)); },
              [&] {
                const bool newLine = !notes.empty() && notes.back() != '\n';
                txtPanelNotes.SetSelText(newLine ? std::string(kLineEnd) + note : note);
              },
              [&] { txtNote.SetText(""); }, [&] { txtNote.SetFocus(); });
}

void frmPanelNotes::cmdDateTime_Click() {
  SkipFailure([&] { txtNote.SetSelStart(0); }, [&] { txtNote.SetSelText(CurrentClock().DateAndTime() + " - "); },
              [&] { txtNote.SetFocus(); });
}

}  // namespace orlin
