#include "OrlinCustomDialogs/late_bound.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "frame/classes/late_members.h"
#include "frame/values/conversions.h"

namespace orlin {
namespace {

std::int32_t liveObjects = 0;

/// The member of that name, which has to be there.
template <class Member>
const Member& Named(const std::vector<Member>& members, std::string_view name) {
  const auto found =
      std::find_if(members.begin(), members.end(), [&](const auto& member) { return SameName(member.Name, name); });
  if (found == members.end()) throw Failure(failures::InvalidCall, "There is no member " + std::string(name));
  return *found;
}

}  // namespace

LateBoundObject::LateBoundObject() noexcept { ++liveObjects; }
LateBoundObject::LateBoundObject(const LateBoundObject& other) noexcept : Object(other) { ++liveObjects; }
LateBoundObject::~LateBoundObject() { --liveObjects; }

Value LateBoundObject::Get(std::string_view property) const { return Named(Members().Properties, property).Get(*this); }

void LateBoundObject::Set(std::string_view property, const Value& value) {
  const auto& named = Named(Members().Properties, property);
  if (!named.Set) throw Failure(failures::InvalidCall, std::string(property) + " can only be read");
  named.Set(*this, value);
}

Value LateBoundObject::Invoke(std::string_view operation, std::vector<Value>& arguments) {
  const auto& named = Named(Members().Operations, operation);
  if (arguments.size() < named.Required || arguments.size() > named.Most) {
    throw Failure(failures::InvalidCall, "Wrong number of arguments for " + std::string(operation));
  }
  return named.Call(*this, arguments);
}

const LateMembers& LateBoundObject::Members() const {
  static const LateMembers none;
  return none;
}

bool AnyLiveObject() noexcept { return liveObjects > 0; }

}  // namespace orlin
