#include "outputs/pine_functions.h"

#include <algorithm>
#include <array>
#include <span>

#include "frame/services/modGeneral.h"

namespace orlin {
namespace {

using Texts = std::array<std::int16_t, kSecondNumbers>;

/// A first text, and one text with the variable NUMBER for all other second numbers.
constexpr Texts Numbered(std::int16_t first, std::int16_t others) {
  Texts texts{};
  texts.fill(others);
  texts[0] = first;
  return texts;
}

struct FirstNumber {
  int First;
  Texts BySecond;
};

// The plain texts in the order of the list. There is no pair 8, 0.
constexpr std::int16_t kSpare = 1266;
constexpr std::int16_t kNoRow = 0;
constexpr std::array<FirstNumber, 8> kPlainTexts = {{
    {0, {513, 1268, 1269, 1272, 1273, 1274, 1275, 1276, 1277, 1278, 1279, 1280, 1283, 1284, 1285, 1286}},
    {1, {1287, 1288, 1289, 1290, 1293, 1294, 1295, 1296, 1297, 1298, 1301, 1197, 1303, 1304, 1305, 1306}},
    {2, {1307, 1308, 1309, 1310, 1311, 1312, 1313, 1314, 1315, 1316, 1317, 1318, 1319, 1320, 1324, 1325}},
    {3, Numbered(1216, 1326)},
    {4, Numbered(kSpare, 1328)},
    {5, Numbered(kSpare, 1330)},
    {6, Numbered(kSpare, 1332)},
    {8, {kNoRow, 1334, kSpare, 1335, 1336, 1337, 1338, 1339, 1340, 1341, 1342, 1343, 1344, 1345, 1346, 10382}},
}};

// Sets of panel-type codes.
constexpr std::array<std::int32_t, 3> kSet1 = {8, 26, 27};
constexpr std::array<std::int32_t, 4> kSet2 = {8, 25, 26, 27};
constexpr std::array<std::int32_t, 9> kShortList = {8, 24, 25, 26, 27, 28, 29, 30, 31};
constexpr std::array<std::int32_t, 10> kLongList = {41, 42, 43, 44, 45, 46, 47, 52, 54, 55};
constexpr std::array<std::int32_t, 1> k32 = {32};
constexpr std::array<std::int32_t, 1> k40 = {40};
constexpr std::array<std::int32_t, 2> k41And42 = {41, 42};

/// Some panels have another text in place of a plain one, wherever that stands: but for the spare text, in one place,
/// or in one numbered group.
struct OtherText {
  std::int16_t Plain;
  std::span<const std::int32_t> PanelTypes;
  std::int16_t Instead;
};
constexpr auto kOtherTexts = std::to_array<OtherText>({
    {kSpare, kSet2, 1267},
    // First number 0
    {1268, kSet2, 1270},
    {1268, k40, 1909},
    {1269, kSet2, 1271},
    {1269, k40, 1910},
    {1272, k40, 1911},
    {1277, k41And42, 1907},
    {1279, kSet1, 1281},
    {1280, kSet1, 1282},
    // 1
    {1289, kSet2, 1291},
    {1290, kSet2, 1292},
    {1297, kSet2, 1299},
    {1297, k40, 1912},
    {1298, kSet2, 1300},
    {1298, k40, 1913},
    {1301, kSet1, 1302},
    // 2
    {1310, k32, 1902},
    {1311, k32, 1903},
    {1312, k32, 1904},
    {1318, kSet1, 1321},
    {1319, kSet1, 1322},
    {1320, kSet1, 1323},
    // 3 to 6
    {1326, kSet1, 1327},
    {1328, kSet1, 1329},
    {1330, kSet1, 1331},
    {1332, kSet1, 1333},
});

// The values whose prefix is one blank narrower than the others: 3, 0 and 4, 0.
constexpr std::array<int, 2> kNarrowPrefixes = {3 * kSecondNumbers, 4 * kSecondNumbers};

template <class Range, class Item>
bool Contains(const Range& range, const Item& item) {
  return std::find(range.begin(), range.end(), item) != range.end();
}

std::int16_t PlainText(const FunctionPair& pair) {
  const auto group = std::find_if(kPlainTexts.begin(), kPlainTexts.end(),
                                  [&](const auto& candidate) { return candidate.First == pair.First; });
  const bool known = group != kPlainTexts.end() && pair.Second >= 0 && pair.Second < kSecondNumbers;
  return known ? group->BySecond[static_cast<std::size_t>(pair.Second)] : kNoRow;
}

}  // namespace

std::int16_t HighestSecond(std::int32_t panelType) {
  if (Contains(kShortList, panelType)) return 3;
  return Contains(kLongList, panelType) ? 15 : 14;
}

bool IsFunction(const FunctionPair& pair) { return PlainText(pair) != kNoRow; }

int RowOf(const FunctionPair& pair) {
  // The highest first number follows 6, 15 and begins with 1.
  return pair.First == kHighestFirst ? 7 * kSecondNumbers + pair.Second - 1 : pair.First * kSecondNumbers + pair.Second;
}

std::string MakeCodePrefix(int value) {
  const int second = value % kSecondNumbers;
  std::string blanks;
  if (second < 10) blanks = Contains(kNarrowPrefixes, value) ? " " : "  ";
  return std::to_string(value / kSecondNumbers) + "," + blanks + std::to_string(second) + "  ";
}

std::string FunctionText(const FunctionPair& pair, std::int32_t panelType) {
  const auto plain = PlainText(pair);
  const auto other = std::find_if(kOtherTexts.begin(), kOtherTexts.end(), [&](const auto& candidate) {
    return candidate.Plain == plain && Contains(candidate.PanelTypes, panelType);
  });
  const auto text = other == kOtherTexts.end() ? plain : other->Instead;
  const bool isNumbered = pair.First >= 3 && pair.First <= 6 && pair.Second > 0;
  return isNumbered ? GetLocalText(text, "NUMBER", std::to_string(pair.Second)) : GetLocalText(text);
}

}  // namespace orlin
