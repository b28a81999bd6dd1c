#include "OrlinCustomDialogs/lists.h"

#include <algorithm>
#include <utility>

#include "frame/classes/late_members.h"
#include "frame/values/conversions.h"
#include "frame/values/skip_failure.h"

namespace orlin {
namespace {

/// By value, as the form may be held by the field that takes the element.
Value ElementOf(const Value& form, std::int32_t index) { return AsArray(form).At(index); }

constexpr std::int32_t kFirstIndex = 1;
constexpr std::int32_t kKeyIndex = 1;

Value AsStored(Value value) { return value; }

/// Sets a field from an element of a form; one that is missing or cannot be converted leaves it as it is.
template <class Field, class Convert>
void Take(Field& field, const Value& form, std::int32_t index, Convert convert) {
  SkipFailure([&] { field = convert(ElementOf(form, index)); });
}

// ---------------------------------------------------------------------------------------------- by name

using Arguments = std::vector<Value>;

/// An argument, or what stands for one that is not given.
Value Given(const Arguments& arguments, std::size_t place, const Value& otherwise = {}) {
  return place < arguments.size() ? arguments[place] : otherwise;
}

/// The members of a list, without its own properties and `Add`.
template <class List>
LateMembers MembersOfList() {
  return {
      .Properties = {{"Count", [](const auto& list) { return Value(dynamic_cast<const List&>(list).Count()); }, {}}},
      .Operations = {
          OperationOf<List>("Copy", 1, 1,
                            [](auto& list, Arguments& given) { return list.Copy(ObjectOf<List>(given[0])); }),
          OperationOf<List>("Serialize", 0, 0, [](auto& list, Arguments&) { return list.Serialize(); }),
          OperationOf<List>("DeSerialize", 1, 1,
                            [](auto& list, Arguments& given) { return list.DeSerialize(given[0]); }),
          OperationOf<List>("Item", 1, 1, [](auto& list, Arguments& given) { return list.Item(given[0]); }),
          OperationOf<List>("Remove", 1, 1,
                            [](auto& list, Arguments& given) { return list.Remove(given[0]), Value(); }),
          OperationOf<List>("NewEnum", 0, 0, [](auto& list, Arguments&) {
            return Array(Arguments(list.begin(), list.end()), kFirstIndex);
          })}};
}

template <class Element>
LateMembers MembersOfElement(std::vector<LateMembers::Property> fields) {
  return {.Properties = std::move(fields),
          .Operations = {
              OperationOf<Element>("Serialize", 0, 0, [](auto& element, Arguments&) { return element.Serialize(); }),
              OperationOf<Element>("DeSerialize", 1, 1,
                                   [](auto& element, Arguments& given) { return element.DeSerialize(given[0]); })}};
}

}  // namespace

// ---------------------------------------------------------------------------------------------- what both lists share

template <class Element>
std::optional<std::size_t> KeyedElements<Element>::Find(const Value& indexOrKey) const {
  if (const auto* key = indexOrKey.Get<std::string>()) {
    const auto found = std::find_if(keys_.begin(), keys_.end(),
                                    [&](const auto& known) { return !known.empty() && SameName(known, *key); });
    if (found == keys_.end()) return std::nullopt;
    return static_cast<std::size_t>(found - keys_.begin());
  }
  std::int32_t position = 0;
  SkipFailure([&] { position = ToLong(indexOrKey); });
  if (position < 1 || position > Count()) return std::nullopt;
  return static_cast<std::size_t>(position) - 1;
}

template <class Element>
std::shared_ptr<Element> KeyedElements<Element>::Item(const Value& vntIndexKey) const {
  const auto place = Find(vntIndexKey);
  return place ? elements_[*place] : nullptr;
}

template <class Element>
void KeyedElements<Element>::Remove(const Value& vntIndexKey) {
  const auto place = Find(vntIndexKey);
  if (!place) return;
  elements_.erase(elements_.begin() + static_cast<std::ptrdiff_t>(*place));
  keys_.erase(keys_.begin() + static_cast<std::ptrdiff_t>(*place));
}

template <class Element>
std::shared_ptr<Element> KeyedElements<Element>::Append(const std::string& key) {
  if (Find(Value(key))) throw Failure(failures::KeyExists);
  auto element = std::make_shared<Element>();
  element->Key = key;
  elements_.push_back(element);
  keys_.push_back(key);
  return element;
}

template <class Element>
void KeyedElements<Element>::Clear() noexcept {
  elements_.clear();
  keys_.clear();
}

template <class Element>
Array KeyedElements<Element>::FormOfElements(std::vector<Value> leading) const {
  for (const auto& element : elements_) leading.push_back(element->Serialize());
  return Array(std::move(leading), kFirstIndex);
}

template class KeyedElements<clsListItem>;
template class KeyedElements<clsRange>;

// ---------------------------------------------------------------------------------------------- choices

void clsListItem::Copy(const std::shared_ptr<const clsListItem>& copyListItem) {
  if (copyListItem != nullptr) *this = *copyListItem;
}

orlin::Value clsListItem::Serialize() const {
  return Array({Key, Item, Value, Color, Description, Hidden, Dynamic, i, S, P}, kFirstIndex);
}

std::int32_t clsListItem::DeSerialize(const orlin::Value& Stream) {
  Take(Item, Stream, 2, ToText);
  Take(Value, Stream, 3, AsStored);
  Take(Color, Stream, 4, ToLong);
  Take(Description, Stream, 5, ToText);
  Take(Hidden, Stream, 6, ToBoolean);
  Take(Dynamic, Stream, 7, ToBoolean);
  Take(i, Stream, 8, ToInteger);
  Take(S, Stream, 9, ToInteger);
  Take(P, Stream, 10, ToInteger);
  return 0;
}

const LateMembers& clsListItem::Members() const {
  static const LateMembers members = [] {
    auto all = MembersOfElement<clsListItem>(
        {PropertyOf("Key", &clsListItem::Key), PropertyOf("Item", &clsListItem::Item),
         PropertyOf("Value", &clsListItem::Value), PropertyOf("Color", &clsListItem::Color),
         PropertyOf("Description", &clsListItem::Description), PropertyOf("Hidden", &clsListItem::Hidden),
         PropertyOf("Dynamic", &clsListItem::Dynamic), PropertyOf("i", &clsListItem::i),
         PropertyOf("S", &clsListItem::S), PropertyOf("P", &clsListItem::P)});
    all.Operations.push_back(OperationOf<clsListItem>("Copy", 1, 1, [](auto& item, Arguments& given) {
      if (given[0].kind() == orlin::Value::Kind::Object) item.Copy(ObjectOf<clsListItem>(given[0]));
      return orlin::Value();
    }));
    return all;
  }();
  return members;
}

std::shared_ptr<clsListItem> clsListItems::Add(const std::string& sKey, const std::string& Item,
                                               const orlin::Value& Value) {
  auto added = Append(sKey);
  added->Item = Item;
  added->Value = Value;
  return added;
}

Value clsListItems::Copy(const std::shared_ptr<const clsListItems>& Source) {
  Clear();
  if (Source == nullptr) return {};
  iDisplayValueSelection = Source->iDisplayValueSelection;
  SkipFailure([&] {
    for (const auto& element : *Source) Append(element->Key)->Copy(element);
  });
  return {};
}

Value clsListItems::Serialize() const {
  if (Count() == 0) return {};
  return FormOfElements({iDisplayValueSelection});
}

Value clsListItems::DeSerialize(const Value& Stream) {
  SkipFailure([&] {
    const auto& forms = AsArray(Stream);
    auto index = kFirstIndex;
    if (const auto* selection = forms.At(index).Get<std::int16_t>()) {
      iDisplayValueSelection = *selection;
      ++index;
    }
    for (; index <= forms.UpperBound(); ++index) {
      const auto& form = forms.At(index);
      Append(ToText(ElementOf(form, kKeyIndex)))->DeSerialize(form);
    }
  });
  return {};
}

const LateMembers& clsListItems::Members() const {
  static const LateMembers members = [] {
    auto all = MembersOfList<clsListItems>();
    all.Properties.push_back(PropertyOf("iDisplayValueSelection", &clsListItems::iDisplayValueSelection));
    all.Operations.push_back(OperationOf<clsListItems>("Add", 1, 3, [](auto& list, Arguments& given) {
      return list.Add(ToText(given[0]), ToText(Given(given, 1)), Given(given, 2));
    }));
    return all;
  }();
  return members;
}

// ---------------------------------------------------------------------------------------------- ranges

Value clsRange::Serialize() const { return Array({Key, Min, Max, Color}, kFirstIndex); }

std::int32_t clsRange::DeSerialize(const Value& Stream) {
  Take(Min, Stream, 2, AsStored);
  Take(Max, Stream, 3, AsStored);
  Take(Color, Stream, 4, ToLong);
  return 0;
}

std::shared_ptr<clsRange> clsRanges::Add(const std::string& sKey, const Value& Min, const Value& Max) {
  std::shared_ptr<clsRange> added;
  SkipFailure([&] {
    added = Append(sKey);
    added->Min = Min;
    added->Max = Max;
  });
  return added;
}

Value clsRanges::Copy(const std::shared_ptr<const clsRanges>& Source) {
  Clear();
  if (Source == nullptr) return {};
  SkipFailure([&] {
    for (const auto& element : *Source) *Append(element->Key) = *element;
  });
  return {};
}

Value clsRanges::Serialize() const {
  if (Count() == 0) return {};
  return FormOfElements({});
}

Value clsRanges::DeSerialize(const Value& Stream) {
  SkipFailure([&] {
    const auto& forms = AsArray(Stream);
    for (auto index = kFirstIndex; index <= forms.UpperBound(); ++index) {
      const auto& form = forms.At(index);
      const auto added = Append(ToText(ElementOf(form, kKeyIndex)));
      added->Min = std::int16_t{0};
      added->Max = std::int16_t{0};
      added->DeSerialize(form);
    }
  });
  return {};
}

const LateMembers& clsRange::Members() const {
  static const auto members =
      MembersOfElement<clsRange>({PropertyOf("Key", &clsRange::Key), PropertyOf("Min", &clsRange::Min),
                                  PropertyOf("Max", &clsRange::Max), PropertyOf("Color", &clsRange::Color)});
  return members;
}

const LateMembers& clsRanges::Members() const {
  static const LateMembers members = [] {
    auto all = MembersOfList<clsRanges>();
    all.Operations.push_back(OperationOf<clsRanges>("Add", 1, 3, [](auto& list, Arguments& given) {
      constexpr std::int16_t none = 0;
      return list.Add(ToText(given[0]), Given(given, 1, none), Given(given, 2, none));
    }));
    return all;
  }();
  return members;
}

}  // namespace orlin
