#include "support/dialog_call.h"

namespace orlin::testing {
namespace {

const std::string kPoint = "clsPointCodes_Oak{0} PointNum=17 PointCode='{1}'";

/// The items that a list shows: each digit with its text, the first one and those from `second` on.
std::string Items(const std::string& digits, int first, int second) {
  std::string items;
  for (const char digit : digits) {
    items += (items.empty() ? "" : ", ") + (digit + (". " + std::to_string(items.empty() ? first : second++)));
  }
  return "[" + items + "] ";
}

TEST(OakPoint, EachModelHasItsLists) {
  const auto digit2 = Items("0123456789", 1393, 1406) + "true true ",
             digit1 = Items("0123456789ABC", 1393, 1394) + "true true ";
  const auto digit3 = Items("0123456789ABCDEF", 1393, 1415) + "true true ";
  std::string words = "title lblPointText";
  for (const std::string digit : {"(1)", "(2)", "(3)", "(4)", "(5)"}) {
    words += " lblDigit" + digit + " cmbDigit" + digit + " lblDigit" + digit + ".visible cmbDigit" + digit + ".visible";
  }
  const std::string none = "1388 [] false false 1387 [] false false";
  ExpectEach(
      {kPoint, "dump", words},
      {"Grand|300|1386 1392 17 1391 " + digit1 + "1390 " + digit2 + "1389 " + digit3 + "1388 " +
           Items("012345678", 1430, 1431) + "true true 1387 " + Items("ABCDEFGHIJKLMNOP", 1439, 1440) + "true true",
       "Mid|300|1386 1392 17 1391 " + Items("0123456789A", 1393, 1394) + "true true 1390 " + digit2 + "1389 " +
           Items("01234567", 1393, 1415) + "true true " + none,
       "Base|300|1386 1392 17 1391 " + digit1 + "1390 " + digit2 + "1389 " + digit3 + none});
}

TEST(OakPoint, CodeOpensDigitByDigit) {
  // A first digit 0 that is picked resets and disables the next two.
  const std::string zero = "select cmbDigit(1) 0;";
  ExpectEach(
      {kPoint, "{2};dump;click cmdOK", "lblPointCode PointCode cmbDigit(2).enabled cmbDigit(3).enabled"},
      {"Grand|10000||1000A '1000A' true true", "Grand|5987c||5987C '5987C' true true",
       "Grand|c9f8P||C9F8P 'C9F8P' true true", "Grand|30009||3000J '3000J' true true",
       "Grand|0597P||0597P '0597P' false false", "Grand|||0000A '0000A' false false",
       "Grand|D20A0||20A '20A' true true", "Grand|3 x-?||3000A '3000A' true true", "Base|C9F88||C9F 'C9F' true true",
       "Base|3||300 '300' true true", "Base|0A5||005 '005' false false", "Mid|A97||A97 'A97' true true",
       "Mid|B29||2 '2' true true", "Mid|308||30 '30' true true", "Grand|354|" + zero + "|0000A '0000A' false false",
       "Mid|354|" + zero + "|000 '000' false false", "Base|354|" + zero + "select cmbDigit(1) 6|600 '600' true true"});
}

TEST(OakPoint, OkRefusesDigitsThatDoNotGoTogether) {
  // Model, first digits, the code with "*" for the digit that is judged, the digits, those accepted, the message.
  for (const std::string line :
       {"Grand|0|000*B|012345678|078|1456", "Grand|1|00*0B|0123456789ABCDEF|09D|1457", "Grand|3A|000*B|0158|0158|",
        "Base|1|00*|0123456789ABCDEF|09D|1457", "Base|2|00*|0123456789ABCDEF|012345679ABDEF|1458",
        "Base|A|00*|0123456789ABCDEF|0123|1459", "Base|03456789BC|00*|4A|4A|", "Mid|12|00*|01234567|0|1455",
        "Mid|03456789A|00*|17|17|"}) {
    const auto cells = Split(line, "|");
    for (std::size_t i = 0; i < cells[1].size() * cells[3].size(); ++i) {
      const char digit = cells[3][i % cells[3].size()];
      auto code = cells[2];
      code[0] = cells[1][i / cells[3].size()];
      code[code.find('*')] = digit;
      const bool accepted = cells[4].find(digit) != std::string::npos;
      if (accepted) {
        ExpectEach({kPoint, "click cmdOK", "result"}, {cells[0] + "|" + code + "|0"});
      } else {
        ExpectEach({kPoint, "answer 1;click cmdOK;dump", "result messages focus lblPointCode"},
                   {cells[0] + "|" + code + "|1 " + cells[5] + "/262/48 cmbDigit(3) " + code});
      }
    }
  }
}

}  // namespace
}  // namespace orlin::testing
