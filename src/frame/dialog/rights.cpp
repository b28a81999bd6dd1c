#include "frame/dialog/rights.h"

#include <algorithm>

#include "OrlinCustomDialogs/failure.h"

#include "frame/values/conversions.h"

namespace orlin {

void SecurityLevels::Add(std::string name, std::int16_t viewLevel, std::int16_t editLevel) {
  if (Find(name) != nullptr) throw Failure(failures::KeyExists);
  records_.push_back({std::move(name), viewLevel, editLevel});
}

std::int32_t SecurityLevels::Count() const noexcept { return static_cast<std::int32_t>(records_.size()); }

const SecurityLevel& SecurityLevels::Item(std::int32_t position) const {
  if (position < 1 || position > Count()) throw Failure(failures::SubscriptOutOfRange);
  return records_[static_cast<std::size_t>(position) - 1];
}

const SecurityLevel& SecurityLevels::Item(std::string_view key) const {
  const auto* record = Find(key);
  if (record == nullptr) throw Failure(failures::InvalidCall);
  return *record;
}

const SecurityLevel* SecurityLevels::Find(std::string_view key) const noexcept {
  const auto found =
      std::find_if(records_.begin(), records_.end(), [&](const auto& record) { return SameName(record.Name, key); });
  return found == records_.end() ? nullptr : &*found;
}

SecurityLevelsPtr AsSecurityLevels(const Value& value) {
  const auto* object = value.Get<ObjectPtr>();
  if (object == nullptr) throw Failure(failures::ObjectRequired);
  auto levels = std::dynamic_pointer_cast<const SecurityLevels>(*object);
  if (levels == nullptr) throw Failure(*object == nullptr ? failures::NoObject : failures::TypeMismatch);
  return levels;
}

namespace {

const std::vector<AnyControl>& ControlsOf(std::string_view recordName, const std::vector<SecuredPart>& parts) {
  static const std::vector<AnyControl> none;
  const auto part = std::ranges::find_if(
      parts, [&](const auto& known) { return known.RecordName == recordName || known.RecordName == kEveryRecord; });
  return part == parts.end() ? none : part->Controls;
}

}  // namespace

void ApplySecurityLevels(const SecurityLevels& levels, const std::vector<SecuredPart>& parts) {
  for (const auto& record : levels) {
    const auto& authority = levels.Item(kAuthorityLevel);
    for (const auto& control : ControlsOf(record.Name, parts)) {
      if (authority.ViewLevel < record.ViewLevel) control.SetVisible(false);
      if (authority.EditLevel < record.EditLevel) control.SetAllowed(false);
    }
  }
}

void HideBySecurityLevels(const SecurityLevels& levels, const std::vector<SecuredPart>& parts) {
  for (const auto& record : levels) {
    const auto& authority = levels.Item(kAuthorityLevel);
    if (authority.ViewLevel >= record.ViewLevel && authority.EditLevel >= record.EditLevel) continue;
    for (const auto& control : ControlsOf(record.Name, parts)) control.SetVisible(false);
  }
}

bool MayView(const SecurityLevels& levels, std::string_view key) {
  return levels.Item(kAuthorityLevel).ViewLevel >= levels.Item(key).ViewLevel;
}

bool MayEdit(const SecurityLevels& levels, std::string_view key) {
  return levels.Item(kAuthorityLevel).EditLevel >= levels.Item(key).EditLevel;
}

}  // namespace orlin
