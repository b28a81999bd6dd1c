#include <algorithm>
#include <string_view>
#include <utility>

#include "OrlinCustomDialogs/written_text.h"

#include "app/description/description_output.h"

namespace orlin {
namespace {

// A longer caption stands on a line of its own.
constexpr std::size_t kWidestCaption = 36;
constexpr std::size_t kTabWidth = 8;
constexpr std::string_view kNothing = "(nothing selected)";
constexpr std::string_view kBetween = "; ";  // words on one line

std::size_t Width(std::string_view text) { return static_cast<std::size_t>(CharacterCount(text)); }

std::string Padded(std::string text, std::size_t width) {
  text.append(width - std::min(width, Width(text)), ' ');
  return text;
}

/// The lines of a text as a terminal may print them: tabs as blanks, and no other control characters.
std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines(1);
  for (const char c : text) {
    auto& line = lines.back();
    if (c == '\n') {
      lines.emplace_back();
    } else if (c == '\t') {
      line = Padded(line, (Width(line) / kTabWidth + 1) * kTabWidth);
    } else if (c != '\r') {
      line.push_back((c >= 0 && c < ' ') || c == '\x7F' ? ' ' : c);
    }
  }
  while (lines.size() > 1 && lines.back().empty()) lines.pop_back();
  return lines;
}

std::vector<std::string> LinesOf(const std::vector<std::string>& rows) {
  std::vector<std::string> lines;
  for (const auto& row : rows) lines.push_back(LinesOf(row).front());
  return lines;
}

std::vector<std::string> LinesOf(const told::Text& text) { return LinesOf(text.Shown); }

std::vector<std::string> LinesOf(const told::Choice& choice) {
  if (!choice.Chosen.empty()) return LinesOf(choice.Chosen);
  return choice.Rows.empty() ? std::vector<std::string>{std::string(kNothing)} : LinesOf(choice.Rows);
}

std::vector<std::string> LinesOf(told::Table table) {
  for (const auto& remark : table.Remarks) {
    table.Cells[static_cast<std::size_t>(remark.Row)][static_cast<std::size_t>(remark.Col)] += " (" + remark.Text + ')';
  }
  std::vector<std::size_t> widths;
  for (auto& row : table.Cells) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t col = 0; col < row.size(); ++col) {
      row[col] = LinesOf(row[col]).front();
      widths[col] = std::max(widths[col], Width(row[col]));
    }
  }
  std::vector<std::string> lines;
  for (const auto& row : table.Cells) {
    auto& line = lines.emplace_back();
    for (std::size_t col = 0; col < row.size(); ++col) {
      line.append(Padded(row[col], widths[col])).append(col + 1 < row.size() ? "  " : "");
    }
  }
  return lines;
}

std::string OneLine(std::string_view text) {
  std::string line;
  for (const auto& part : LinesOf(text)) {
    if (!part.empty()) line.append(line.empty() ? "" : " ").append(part);
  }
  return line;
}

std::string Joined(const std::vector<std::string>& parts, std::string_view between) {
  std::string all;
  for (const auto& part : parts) {
    if (const auto line = OneLine(part); !line.empty()) all.append(all.empty() ? "" : between).append(line);
  }
  return all;
}

/// One entry of the form: a caption, and what stands beside it or, where it is wide, below it.
struct Entry {
  std::string Caption;
  std::vector<std::string> Lines;
  int Depth = 0;
  bool Below = false;
};

class Form {
 public:
  explicit Form(const std::vector<ToldControl>& controls) {
    for (std::size_t i = 0; i < controls.size(); ++i) {
      Add(controls[i]);
      const bool endsOptions = i + 1 == controls.size() || controls[i + 1].Kind != ControlKind::OptionButton ||
                               controls[i + 1].Frame != controls[i].Frame;
      if (controls[i].Kind == ControlKind::OptionButton && endsOptions && !std::exchange(anyOption_, false)) {
        AddLines(controls[i].Frame, {}, {std::string(kNothing)});
      }
    }
  }

  void Print(std::ostream& out) const {
    std::size_t width = 0;
    for (const auto& entry : entries_) {
      if (IsBeside(entry)) width = std::max(width, Indent(entry.Depth).size() + Width(entry.Caption) + 1);
    }
    for (const auto& entry : entries_) Print(entry, width, out);
  }

  /// Each entry that has something to tell as a line of its own; those of a table are its rows.
  [[nodiscard]] std::vector<std::string> Words() const {
    std::vector<std::string> words;
    for (const auto& entry : entries_) {
      const auto start = entry.Caption.empty() ? "" : OneLine(entry.Caption) + ": ";
      if (entry.Below) {
        for (const auto& line : entry.Lines) words.push_back(start + OneLine(line));
      } else if (!entry.Lines.empty()) {
        words.push_back(start + Joined(entry.Lines, ", "));
      }
    }
    return words;
  }

 private:
  static std::string Indent(int depth) { return std::string(static_cast<std::size_t>(2 * depth), ' '); }

  static bool IsBeside(const Entry& entry) {
    return !entry.Below && !entry.Caption.empty() && !entry.Lines.empty() && Width(entry.Caption) <= kWidestCaption;
  }

  void Add(const ToldControl& control) {
    if (control.Joins != Joins::No && !entries_.empty() && !entries_.back().Lines.empty()) {
      auto& line = entries_.back().Lines.back();
      if (control.Joins == Joins::WithBlank) line.push_back(' ');
      line.append(LinesOf(std::get<told::Text>(control.Shows)).front());
      return;
    }
    if (const auto* mark = std::get_if<told::Mark>(&control.Shows)) return AddMark(control, *mark);
    if (const auto* table = std::get_if<told::Table>(&control.Shows)) {
      AddLines(control.Frame, control.Caption, LinesOf(*table));
      entries_.back().Below = true;
      return;
    }
    const auto* text = std::get_if<told::Text>(&control.Shows);
    auto lines = text != nullptr ? LinesOf(*text) : LinesOf(std::get<told::Choice>(control.Shows));
    AddLines(control.Frame, control.Caption, std::move(lines));
  }

  void AddMark(const ToldControl& control, const told::Mark& mark) {
    if (control.Kind == ControlKind::CheckBox) {
      AddLines(control.Frame, {}, {(mark.On ? "[x] " : "[ ] ") + control.Caption});
    } else if (mark.On) {
      anyOption_ = true;
      AddLines(control.Frame, {}, {"(*) " + control.Caption});
    }
  }

  /// What has no caption in a frame stands beside the caption of the frame.
  void AddLines(const std::string& frame, const std::string& caption, std::vector<std::string> lines) {
    const bool newFrame = std::exchange(frame_, frame) != frame && !frame.empty();
    if (newFrame) entries_.push_back({frame, {}, 1, false});
    if (!frame.empty() && caption.empty() && !entries_.back().Below && entries_.back().Depth == 1) {
      auto& beside = entries_.back().Lines;
      beside.insert(beside.end(), lines.begin(), lines.end());
    } else {
      entries_.push_back({caption, std::move(lines), frame.empty() ? 1 : 2, false});
    }
  }

  void Print(const Entry& entry, std::size_t width, std::ostream& out) const {
    const auto indent = Indent(entry.Depth);
    if (IsBeside(entry)) {
      auto caption = Padded(indent + entry.Caption + ':', width);
      for (const auto& line : entry.Lines)
        PrintLine(std::exchange(caption, std::string(width, ' ')) + "  " + line, out);
      return;
    }
    if (!entry.Caption.empty()) {
      for (const auto& line : LinesOf(entry.Caption)) PrintLine(indent + line, out);
    }
    for (const auto& line : entry.Lines) PrintLine(indent + (entry.Caption.empty() ? "" : "  ") + line, out);
  }

  static void PrintLine(std::string line, std::ostream& out) {
    while (line.ends_with(' ')) line.pop_back();
    out << line << '\n';
  }

  std::vector<Entry> entries_;
  std::string frame_;
  bool anyOption_ = false;
};

std::string Told(const Note& note, bool shown) {
  if (!note.Failure) return "message: " + OneLine(note.Text);
  std::string told = (shown ? "failure " : "cannot be shown: failure ") + std::to_string(*note.Failure);
  if (!note.Where.empty()) told.append(" in ").append(note.Where);
  return told + ", " + OneLine(note.Text);
}

std::vector<std::string> Words(const Description& description) {
  auto words = Form(description.Controls).Words();
  for (const auto& note : description.Notes) words.push_back(Told(note, description.Dialog.has_value()));
  return words;
}

/// Those of `words` that are not among the others.
std::vector<std::string> Without(std::vector<std::string> words, const std::vector<std::string>& others) {
  const auto isThere = [&](const std::string& line) {
    return std::find(others.begin(), others.end(), line) != others.end();
  };
  words.erase(std::remove_if(words.begin(), words.end(), isThere), words.end());
  return words;
}

}  // namespace

void PrintText(const Description& description, const std::optional<std::string>& name, std::ostream& out) {
  const auto& title = description.Dialog ? description.Title : description.Class;
  out << OneLine((name ? *name + ": " : "") + title) << '\n';
  Form(description.Controls).Print(out);
  const bool shown = description.Dialog.has_value();
  for (const auto& note : description.Notes) out << "  ! " << Told(note, shown) << '\n';
  if (!shown && description.Notes.empty()) out << "  ! the dialog has nothing to show\n";
}

std::string WordsOf(const Description& description) { return Joined(Words(description), kBetween); }

std::pair<std::string, std::string> DifferentWords(const Description& a, const Description& b) {
  const auto all = std::pair(Words(a), Words(b));
  const auto own = std::pair(Without(all.first, all.second), Without(all.second, all.first));
  const auto& told = own.first.empty() || own.second.empty() ? all : own;
  return {Joined(told.first, kBetween), Joined(told.second, kBetween)};
}

}  // namespace orlin
