#include "OrlinCustomDialogs/hosts/script/trace.h"

#include <nlohmann/json.hpp>

#include "script/state.h"

namespace orlin {
namespace {

using nlohmann::ordered_json;

ordered_json NewEvent(std::string_view name) { return {{"event", name}}; }

void Write(std::ostream& out, const ordered_json& event) {
  out << event.dump(-1, ' ', false, ordered_json::error_handler_t::replace) << '\n';
}

ordered_json Plain(const Value& value) {
  switch (value.kind()) {
    case Value::Kind::Empty:
    case Value::Kind::Object:
      break;
    case Value::Kind::Integer:
      return *value.Get<std::int16_t>();
    case Value::Kind::Long:
      return *value.Get<std::int32_t>();
    case Value::Kind::Double:
      return *value.Get<double>();
    case Value::Kind::Boolean:
      return *value.Get<bool>();
    case Value::Kind::String:
      return *value.Get<std::string>();
    case Value::Kind::Array: {
      auto list = ordered_json::array();
      for (const auto& element : value.Get<Array>()->Elements()) list.push_back(Plain(element));
      return list;
    }
  }
  return nullptr;
}

ordered_json Typed(const Value& value) {
  ordered_json typed;
  typed["type"] = KindName(value.kind());
  typed["value"] = Plain(value);
  if (const auto* array = value.Get<Array>()) {
    auto& types = typed["types"] = ordered_json::array();
    for (const auto& element : array->Elements()) types.push_back(KindName(element.kind()));
    typed["lower"] = array->LowerBound();
  }
  return typed;
}

void AddArguments(ordered_json& event, const std::vector<Trace::Argument>& arguments) {
  auto& named = event["arguments"] = ordered_json::object();
  for (const auto& argument : arguments) named[argument.Name] = Typed(argument.Held);
}

}  // namespace

void Trace::Shown(const shown::Dialog& dialog) {
  auto event = NewEvent("show");
  event["dialog"] = dialog.Name();
  event["caption"] = dialog.Caption();
  Write(out_, event);
}

void Trace::Answered(const Message& message, int answer) {
  auto event = NewEvent("message");
  event["text"] = message.Text;
  event["title"] = message.Title ? ordered_json(*message.Title) : ordered_json();
  event["flags"] = message.Flags;
  event["answer"] = answer;
  Write(out_, event);
}

void Trace::Beep() { Write(out_, NewEvent("beep")); }

void Trace::FaultLogged(std::int32_t number, std::string_view module, std::string_view procedure,
                        std::string_view additional, bool shown) {
  auto event = NewEvent("fault");
  event["number"] = number;
  event["module"] = module;
  event["procedure"] = procedure;
  event["additional"] = additional;
  event["shown"] = shown;
  Write(out_, event);
}

void Trace::HandlerFailed(std::string_view handler, std::int32_t number) {
  auto event = NewEvent("failure");
  event["number"] = number;
  event["handler"] = handler;
  Write(out_, event);
}

void Trace::Refused(int line, std::string_view action, std::string_view why) {
  auto event = NewEvent("refused");
  event["line"] = line;
  event["action"] = action;
  event["why"] = why;
  Write(out_, event);
}

void Trace::State(const shown::Dialog& dialog) {
  auto event = NewEvent("state");
  event["caption"] = dialog.Caption();
  const auto* focus = dialog.FocusedControl();
  event["focus"] = focus != nullptr ? ordered_json(focus->Name()) : ordered_json();
  auto& controls = event["controls"] = ordered_json::object();
  for (const auto* control : dialog.Controls()) controls[control->Name()] = StateOf(*control);
  Write(out_, event);
}

void Trace::Returned(std::int32_t result, const std::vector<Argument>& arguments) {
  auto event = NewEvent("return");
  event["result"] = result;
  AddArguments(event, arguments);
  Write(out_, event);
}

void Trace::Raised(std::int32_t number, const std::vector<Argument>& arguments) {
  auto event = NewEvent("return");
  event["result"] = nullptr;
  event["raised"] = number;
  AddArguments(event, arguments);
  Write(out_, event);
}

}  // namespace orlin
