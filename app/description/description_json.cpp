#include <nlohmann/json.hpp>

#include "app/description/description_output.h"

namespace orlin {
namespace {

using nlohmann::ordered_json;

void Add(ordered_json& json, const told::Text& text) { json["text"] = text.Shown; }

void Add(ordered_json& json, const told::Choice& choice) {
  if (choice.Many) {
    json["selected"] = choice.Chosen;
  } else {
    json["selected"] = choice.Chosen.empty() ? ordered_json() : ordered_json(choice.Chosen.front());
  }
  if (!choice.Rows.empty()) json["rows"] = choice.Rows;
}

void Add(ordered_json& json, const told::Mark& mark) { json["on"] = mark.On; }

void Add(ordered_json& json, const told::Table& table) {
  json["fixedRows"] = table.FixedRows;
  json["fixedCols"] = table.FixedCols;
  json["cells"] = table.Cells;
  auto& remarks = json["remarks"] = ordered_json::array();
  for (const auto& remark : table.Remarks) {
    remarks.push_back({{"row", remark.Row}, {"col", remark.Col}, {"text", remark.Text}});
  }
}

ordered_json JsonOf(const ToldControl& control) {
  ordered_json json;
  json["control"] = control.Name;
  json["kind"] = KindName(control.Kind);
  json["caption"] = control.Caption;
  json["frame"] = control.Frame;
  json["enabled"] = control.Enabled;
  std::visit([&](const auto& shows) { Add(json, shows); }, control.Shows);
  return json;
}

ordered_json JsonOf(const Note& note) {
  if (!note.Failure) return {{"message", note.Text}, {"title", note.Where}};
  return {{"failure", *note.Failure}, {"description", note.Text}, {"where", note.Where}};
}

template <class Of>
ordered_json List(const std::vector<Of>& all) {
  auto list = ordered_json::array();
  for (const auto& one : all) list.push_back(JsonOf(one));
  return list;
}

}  // namespace

void PrintJson(const Description& description, const std::optional<std::string>& name, std::ostream& out) {
  ordered_json json;
  if (name) json["name"] = *name;
  json["class"] = description.Class;
  json["dialog"] = description.Dialog ? ordered_json(*description.Dialog) : ordered_json();
  json["title"] = description.Dialog ? ordered_json(description.Title) : ordered_json();
  json["controls"] = List(description.Controls);
  json["notes"] = List(description.Notes);
  out << json.dump(-1, ' ', false, ordered_json::error_handler_t::replace) << '\n';
}

}  // namespace orlin
