#include "schedules/willow_catalogue.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "frame/services/modGeneral.h"
#include "frame/values/conversions.h"

namespace orlin::willow {
namespace {

enum class Panels { Both, Ace };
using enum Panels;

// Functions with consecutive codes. The variable of their texts starts at FirstValue. Numbers: each value takes all
// the texts in turn, one code a text, and then the next value follows. Doors: each text takes all the doors in turn.
struct Functions {
  int FirstCode;
  int LastCode;
  Panels On;
  std::string_view Variable;
  int FirstValue;
  std::array<std::int16_t, 18> Texts;
};

constexpr std::string_view kDoor = "DOOR";
constexpr int kDoors = 4;  // A to D

// clang-format off
constexpr auto kFunctions = std::to_array<Functions>({
    // codes     on    variable, from  texts
    {  1,  10, Both, "",       0, {1544, 1545, 1546, 1547, 1548, 1549, 1550, 1551, 1552, 1553}},
    { 11,  18, Both, "RELAY",  1, {1554}},
    { 19,  19, Both, "",       0, {1556}},
    { 20,  27, Both, "RELAY",  1, {1555}},
    { 28,  28, Both, "",       0, {1558}},
    { 29,  36, Both, "RELAY",  1, {1557}},
    { 37,  37, Both, "",       0, {1560}},
    { 38,  45, Both, "RELAY",  1, {1559}},
    { 46,  46, Both, "",       0, {1562}},
    { 47,  54, Both, "ZONE",   1, {1563}},
    { 55,  62, Both, "ZONE",   1, {1564}},
    { 63,  70, Both, "ZONE",   1, {1565}},
    { 71,  86, Both, "ZONE",   1, {1566, 1567}},
    { 87,  87, Both, "",       0, {1568}},
    { 88,  88, Both, "",       0, {1569}},
    { 89,  96, Both, "COMBO",  1, {1570}},
    { 97, 102, Both, "COMBO", 91, {1570}},
    {103, 110, Both, "COMBO",  1, {1561}},
    {111, 116, Both, "COMBO", 91, {1561}},
    {117, 123, Ace,  "LEVEL",  1, {1571}},
    {124, 124, Ace,  "",       0, {1572}},
    {125, 131, Ace,  "LEVEL",  1, {1576}},
    {132, 132, Ace,  "",       0, {1573}},
    {133, 139, Ace,  "LEVEL",  1, {1578}},
    {140, 140, Ace,  "",       0, {1574}},
    {141, 147, Ace,  "LEVEL",  1, {1876}},
    {148, 148, Ace,  "",       0, {1575}},
    {149, 155, Ace,  "LEVEL",  1, {1877}},
    {156, 156, Ace,  "",       0, {1577}},
    {157, 163, Ace,  "LEVEL",  1, {1877}},
    {164, 164, Ace,  "",       0, {1579}},
    {165, 236, Ace,  kDoor,  'A', {1580, 1581, 1582, 1583, 1584, 1585, 1879, 1880, 1881, 1882, 1883, 1884, 1885, 1886,
                                   1887, 1586, 1587, 1588}},
    {237, 237, Both, "",       0, {1589}},
    {238, 253, Both, "COMBO",  1, {1888, 1889}},
    {254, 265, Both, "COMBO", 91, {1888, 1889}},
    {266, 281, Both, "COMBO",  1, {1590, 1591}},
    {282, 293, Both, "COMBO", 91, {1590, 1591}},
    {294, 309, Both, "RELAY",  1, {1592, 1593}},
    {310, 317, Both, "ZONE",   1, {1890}},
    {318, 318, Both, "",       0, {1594}},
    {319, 326, Both, "ZONE",   1, {1891}},
    {327, 327, Both, "",       0, {1595}},
    {328, 328, Ace,  "",       0, {1596}},
    {329, 329, Ace,  "",       0, {1597}},
    {330, 333, Ace,  kDoor,  'A', {1598}},
    {334, 334, Ace,  "",       0, {1599}},
    {335, 335, Ace,  "",       0, {1600}},
    {336, 339, Ace,  kDoor,  'A', {1601}},
    {340, 343, Ace,  kDoor,  'A', {1602}},
    {344, 347, Ace,  kDoor,  'A', {1603}},
});
// clang-format on

bool Has(ePanelType panel, const Functions& functions) {
  return functions.On == Both || panel == ePanelType::WillowAce;
}

int CodeCount(const Functions& functions) { return functions.LastCode - functions.FirstCode + 1; }

std::string Text(const Functions& functions, int place) {
  const auto& texts = functions.Texts;
  const auto at = [&](int index) { return texts.at(static_cast<std::size_t>(index)); };
  if (functions.Variable == kDoor) {
    const auto door = static_cast<char>(functions.FirstValue + place % kDoors);
    return GetLocalText(at(place / kDoors), std::string(kDoor), std::string(1, door));
  }
  const auto textCount = static_cast<int>(std::find(texts.begin(), texts.end(), 0) - texts.begin());
  const auto number = at(place % textCount);
  if (functions.Variable.empty()) return GetLocalText(number);
  return GetLocalText(number, std::string(functions.Variable),
                      std::to_string(functions.FirstValue + place / textCount));
}

std::string ThreeDigits(int number) {
  const auto digits = std::to_string(number);
  return std::string(3 - digits.size(), '0') + digits;
}

// The codes that WillowDuo lacks in the middle of its list.
constexpr int kFirstBehindGap = 237;
constexpr int kGap = 120;

}  // namespace

std::vector<std::string> FunctionEntries(ePanelType panel) {
  std::vector<std::string> entries;
  for (const auto& functions : kFunctions) {
    if (!Has(panel, functions)) continue;
    for (int place = 0; place < CodeCount(functions); ++place) {
      entries.push_back(ThreeDigits(functions.FirstCode + place) + "  " + Text(functions, place));
    }
  }
  return entries;
}

int FunctionRow(std::string_view code, ePanelType panel) {
  const double number = NumericValue(code);
  const bool known = std::any_of(kFunctions.begin(), kFunctions.end(), [&](const auto& functions) {
    return Has(panel, functions) && number >= functions.FirstCode && number <= functions.LastCode;
  });
  if (!known || std::floor(number) != number) return -1;
  const bool behindGap = number >= kFirstBehindGap && panel != ePanelType::WillowAce;
  return static_cast<int>(number) - 1 - (behindGap ? kGap : 0);
}

}  // namespace orlin::willow
