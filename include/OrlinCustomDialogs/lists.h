#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "OrlinCustomDialogs/late_bound.h"
#include "OrlinCustomDialogs/value.h"

// The values that a parameter may take: a list of named choices, or a list of ranges of numbers.
//
// A host may make such lists by itself, by type or by name, copy them, and carry them as values. A serialised element
// or list is an array whose first index is 1; an element in it keeps its kind.
//
// By name (`LateBoundObject`) the fields are properties, and so is `Count`, which can only be read; `NewEnum` returns
// an Array of the elements from index 1.

namespace [[using gnu: visibility("default")]] orlin {

/// An ordered collection. An element may have a key, which is unique in the collection without regard to case (of the
/// letters A to Z). Elements are shared: what `Item` gives out is the element in the list, and a change to it shows
/// there.
template <class Element>
class KeyedElements : public LateBoundObject {
 public:
  KeyedElements() = default;
  KeyedElements(const KeyedElements&) = delete;
  KeyedElements& operator=(const KeyedElements&) = delete;

  /// The element with a key (a text) or at a position counted from 1 (any other value); null where there is none.
  /// The key is the one under which the element was added, whatever its field `Key` holds by now.
  [[nodiscard]] std::shared_ptr<Element> Item(const Value& vntIndexKey) const;
  [[nodiscard]] std::int32_t Count() const noexcept { return static_cast<std::int32_t>(elements_.size()); }
  /// Takes an element out and closes the gap; does nothing where there is none.
  void Remove(const Value& vntIndexKey);

  /// The elements in order, each as a `std::shared_ptr<Element>`. The list must not change during the walk.
  [[nodiscard]] auto begin() const noexcept { return elements_.begin(); }
  [[nodiscard]] auto end() const noexcept { return elements_.end(); }

 protected:
  /// A new element at the end; an empty key is none. `Failure` 457 where the key is there already.
  std::shared_ptr<Element> Append(const std::string& key);
  void Clear() noexcept;
  /// An array of `leading` and the forms of all elements.
  [[nodiscard]] Array FormOfElements(std::vector<Value> leading) const;

 private:
  [[nodiscard]] std::optional<std::size_t> Find(const Value& indexOrKey) const;

  std::vector<std::shared_ptr<Element>> elements_;
  std::vector<std::string> keys_;  // of the elements, in their order
};

/// One choice of a list.
class clsListItem : public LateBoundObject {
 public:
  std::string Key;
  std::string Item;  ///< what is shown for the choice
  orlin::Value Value;
  std::int32_t Color = 0xFFFFFF;
  // Carried for the host.
  std::string Description;
  bool Hidden = false;
  bool Dynamic = false;
  std::int16_t i = 0;
  std::int16_t S = 0;
  std::int16_t P = 0;

  /// Takes over all fields, `Key` included; nothing from null. The list that holds this element still knows it by the
  /// key under which it was added.
  void Copy(const std::shared_ptr<const clsListItem>& copyListItem);

  /// The ten fields in the order above, at the indexes 1 to 10.
  [[nodiscard]] orlin::Value Serialize() const;
  /// Takes all fields but `Key` from such an array, each converted to its type. A field whose element is missing or
  /// cannot be converted stays as it is. Always 0.
  std::int32_t DeSerialize(const orlin::Value& Stream);

 private:
  [[nodiscard]] const LateMembers& Members() const override;
};

/// One range of numbers.
class clsRange : public LateBoundObject {
 public:
  std::string Key;
  Value Min;
  Value Max;
  std::int32_t Color = 0xFFFFFF;

  /// The four fields in the order above, at the indexes 1 to 4.
  [[nodiscard]] Value Serialize() const;
  /// As `clsListItem::DeSerialize`.
  std::int32_t DeSerialize(const Value& Stream);

 private:
  [[nodiscard]] const LateMembers& Members() const override;
};

extern template class KeyedElements<clsListItem>;
extern template class KeyedElements<clsRange>;

/// A list of choices.
///
///     auto choices = std::make_shared<orlin::clsListItems>();
///     choices->Add("1", "Yes", std::int16_t{1});
///     choices->Item("1")->Color = 0x00FF00;
class clsListItems : public KeyedElements<clsListItem> {
 public:
  std::int16_t iDisplayValueSelection = 0;  ///< carried for the host

  /// Appends a choice and returns it. With an empty key it can be found by its position only. `Failure` 457 where the
  /// key is there already.
  std::shared_ptr<clsListItem> Add(const std::string& sKey, const std::string& Item = {}, const Value& Value = {});

  /// Empties the list and fills it with copies of another one's elements, each under the key that its field `Key`
  /// holds. Two elements with the same key end the copying; what has been copied stays. Always an empty value.
  Value Copy(const std::shared_ptr<const clsListItems>& Source);

  /// `iDisplayValueSelection` as an Integer at index 1, the forms of the elements behind it. An empty value for an
  /// empty list.
  [[nodiscard]] Value Serialize() const;
  /// Appends the elements of such an array to what the list holds. An older form that lacks the number at index 1 is
  /// read as well, and leaves `iDisplayValueSelection` as it is. An element that is no array, or whose key is there
  /// already, ends the reading; what has been read stays. A value that is no array changes nothing. Always an empty
  /// value.
  Value DeSerialize(const Value& Stream);

 private:
  [[nodiscard]] const LateMembers& Members() const override;
};

/// A list of ranges.
class clsRanges : public KeyedElements<clsRange> {
 public:
  /// Appends a range and returns it; null where the key is there already.
  std::shared_ptr<clsRange> Add(const std::string& sKey, const Value& Min = std::int16_t{0},
                                const Value& Max = std::int16_t{0});

  /// As `clsListItems::Copy`.
  Value Copy(const std::shared_ptr<const clsRanges>& Source);

  /// The forms of the elements from index 1. An empty value for an empty list.
  [[nodiscard]] Value Serialize() const;
  /// As `clsListItems::DeSerialize`, without a number at index 1.
  Value DeSerialize(const Value& Stream);

 private:
  [[nodiscard]] const LateMembers& Members() const override;
};

}  // namespace orlin
