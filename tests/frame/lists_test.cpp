#include "OrlinCustomDialogs/lists.h"

#include "frame/dialog/rights.h"
#include "support/frame_fixture.h"

namespace orlin::testing {
namespace {

std::shared_ptr<clsListItems> Choices(const std::vector<std::string>& keys) {
  auto items = std::make_shared<clsListItems>();
  for (const auto& key : keys) items->Add(key, "text of " + key);
  return items;
}

template <class List>
std::string KeysOf(const List& list) {
  std::string keys;
  for (const auto& element : list) keys += element->Key + " ";
  return keys;
}

/// The form of an element in which no field has its default.
Value FullForm(const Value& value) {
  const auto number = [](int i) { return Value(static_cast<std::int16_t>(i)); };
  return Array({"k", "shown", value, 0x123456, "told", true, true, number(1), number(-2), number(3)}, 1);
}

std::shared_ptr<clsListItem> FullItem() {
  auto item = std::make_shared<clsListItem>();
  item->DeSerialize(FullForm(5)), item->Key = "k";
  return item;
}

TEST(ValueList, FindsByPositionAndByKeyWithoutRegardToCase) {
  const auto items = Choices({"abc", "2", ""});
  EXPECT_EQ(FailureOf([&] { items->Add("ABC"); }), failures::KeyExists);
  items->Add(""), items->Add("b", "old")->Item = "new";
  EXPECT_EQ(items->Count(), 5);
  EXPECT_EQ(items->Item("B")->Item, "new");
  EXPECT_EQ(items->Item(std::int16_t{1})->Key, "abc");
  EXPECT_EQ(items->Item(1), items->Item("ABC"));
  EXPECT_EQ(items->Item(2), items->Item("2"));
  const std::vector<Value> missing = {"1", "", 0, 6, -1, Value(), 1e12, Array()};
  for (const auto& key : missing) EXPECT_EQ(items->Item(key), nullptr);
  clsRanges ranges;
  EXPECT_EQ(ranges.Add("abc")->Min, Value(std::int16_t{0}));
  EXPECT_EQ(ranges.Add("ABC"), nullptr);
  EXPECT_EQ(ranges.Count(), 1);
}

TEST(ValueList, ClosesTheGapOfARemovedElement) {
  const auto items = Choices({"a", "b", "c", "d"});
  items->Remove("B");
  items->Remove(1);
  for (const auto& missing : {Value("b"), Value(0), Value(3)}) items->Remove(missing);
  items->Add("b");
  EXPECT_EQ(KeysOf(*items), "c d b ");
  EXPECT_EQ(items->Item(1), items->Item("c"));
}

TEST(ValueList, KnowsAnElementByTheKeyOfItsAdding) {
  const auto items = Choices({"a"});
  items->Item("a")->Copy(nullptr);
  EXPECT_EQ(items->Item("a")->Item, "text of a");
  items->Item("a")->Copy(FullItem());
  EXPECT_EQ(items->Item("a")->Serialize(), FullForm(5));
  EXPECT_EQ(items->Item("k"), nullptr);
}

/// What a list does with its copy: new elements, all of them or up to the first that fails.
template <class List>
void ExpectCopies(const std::shared_ptr<List>& source, const std::string& keysUntilFailure) {
  List copy;
  copy.Add("x");
  EXPECT_EQ(copy.Copy(source), Value());
  EXPECT_EQ(copy.Serialize(), source->Serialize());
  EXPECT_NE(copy.Item(1), source->Item(1));
  source->Item("b")->Key = "A";
  copy.Copy(source);
  EXPECT_EQ(KeysOf(copy), keysUntilFailure);
}

TEST(ValueList, CopiesIntoNewElementsUntilAFailure) {
  const auto items = Choices({"a", "", "b", "c"});
  items->iDisplayValueSelection = 7;
  items->Item(2)->Copy(FullItem());
  ExpectCopies(items, "a k ");
  items->Copy(nullptr);
  EXPECT_EQ(items->Count(), 0);
  const auto ranges = std::make_shared<clsRanges>();
  for (const char* key : {"a", "b", "c"}) ranges->Add(key, 1, 127)->Color = 5;
  ExpectCopies(ranges, "a ");
}

TEST(ValueList, KeepsEveryFieldInItsKind) {
  for (const auto& value : {Value(), Value(std::int16_t{1}), Value(1), Value(2.5), Value(true), Value("text"),
                            Value(Array({"nested", 1}, 3)), Value(std::make_shared<Object>())}) {
    const auto items = Choices({});
    items->iDisplayValueSelection = 4;
    items->Add("k")->DeSerialize(FullForm(value));
    const Value form = Array({std::int16_t{4}, FullForm(value)}, 1);
    EXPECT_EQ(items->Serialize(), form);
    const auto read = Choices({"first"});
    EXPECT_EQ(read->DeSerialize(form), Value());
    EXPECT_EQ(KeysOf(*read), "first k ");
    EXPECT_EQ(read->iDisplayValueSelection, 4);
    EXPECT_EQ(read->Item("K")->Serialize(), FullForm(value));
  }
  const Value none = std::int16_t{0};
  EXPECT_EQ(clsListItem().Serialize(),
            Value(Array({"", "", Value(), 0xFFFFFF, "", false, false, none, none, none}, 1)));
  EXPECT_EQ(clsRange().Serialize(), Value(Array({"", Value(), Value(), 0xFFFFFF}, 1)));

  const Value ranges = Array({Array({"1", 1, 2.5, 6}, 1), Array({"", "x", none, 7}, 1)}, 1);
  clsRanges read;
  EXPECT_EQ(read.DeSerialize(ranges), Value());
  EXPECT_EQ(read.Serialize(), ranges);
}

TEST(ValueList, SkipsFieldsThatFail) {
  const auto item = FullItem();
  const auto fields = item->Serialize();
  item->DeSerialize(Array({"other", Array(), 6, "no number", "new", "maybe", "True", "40000", "9"}, 1));
  auto expected = *fields.Get<Array>();
  expected.At(3) = 6, expected.At(5) = "new", expected.At(9) = std::int16_t{9};
  EXPECT_EQ(item->Serialize(), Value(expected));
  EXPECT_EQ(item->DeSerialize("no array"), 0);
  EXPECT_EQ(item->Value, Value(6));

  clsRanges ranges;
  ranges.DeSerialize(Array({Array({"k", 4}, 1)}, 1));
  EXPECT_EQ(ranges.Item("k")->Serialize(), Value(Array({"k", 4, std::int16_t{0}, 0xFFFFFF}, 1)));
}

TEST(ValueList, ReadsTheFormWithoutASelectionUntilAFailureAndNothingWithoutAnArray) {
  const auto items = Choices({});
  items->iDisplayValueSelection = 4;
  items->DeSerialize(Array({FullForm(1), Array({"z"}, 1), Array({"K"}, 1), Array({"y"}, 1)}, 1));
  EXPECT_EQ(KeysOf(*items), "k z ");
  items->DeSerialize(Array({Array({"x"}, 1), "no element", Array({"y"}, 1)}, 1));
  EXPECT_EQ(clsRanges().Serialize(), Value());
  for (const auto& stream : {Choices({})->Serialize(), clsRanges().Serialize(), Value("x"), Value(1), Value(Array())}) {
    EXPECT_EQ(items->DeSerialize(stream), Value());
    EXPECT_EQ(KeysOf(*items), "k z x ");
    EXPECT_EQ(items->iDisplayValueSelection, 4);
  }
}

TEST(SecurityLevelsCollection, IsOrderedAndKeyedWithoutRegardToCase) {
  SecurityLevels levels;
  levels.Add("Date", 1, 2), levels.Add("AuthorityLevel", 1, 1);
  EXPECT_EQ(levels.Count(), 2);
  EXPECT_EQ(levels.Item(1).Name, "Date");
  EXPECT_EQ(levels.Item("DATE").EditLevel, 2);
  EXPECT_TRUE(MayView(levels, "Date") && !MayEdit(levels, "Date"));
  EXPECT_EQ(FailureOf([&] { levels.Add("date", 0, 0); }), failures::KeyExists);
  for (const int index : {0, 3})
    EXPECT_EQ(FailureOf([&] { return levels.Item(index); }), failures::SubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { return levels.Item("x"); }), failures::InvalidCall);
}

TEST(SecurityLevelsArgument, HasToBeACollection) {
  const std::pair<Value, int> cases[] = {{std::make_shared<SecurityLevels>(), 0},
                                         {Value(), failures::ObjectRequired},
                                         {"x", failures::ObjectRequired},
                                         {ObjectPtr(), failures::NoObject},
                                         {std::make_shared<Object>(), failures::TypeMismatch}};
  for (const auto& [value, failure] : cases)
    EXPECT_EQ(FailureOf([&level = value] { return AsSecurityLevels(level); }), failure);
}

}  // namespace
}  // namespace orlin::testing
