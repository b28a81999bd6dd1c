#include "support/dialog_call.h"

namespace orlin::testing {
namespace {

const std::string kOnboard = "clsOnboardOutputsBirch vName=Output1 vType='{0}' vOption='{1}'";

std::string OfEachOption(const std::string& property) {
  std::string words;
  for (const char* index : {"0", "1", "2", "3", "4"}) {
    words += " optOption(" + std::string(index) + ")" + property;
  }
  return words;
}

TEST(OnboardOutputs, EachTypeShowsItsOptionsAndComesBack) {
  Strings rows;
  for (int code = 0; code <= 14; ++code) {
    if (code == 12) continue;
    const auto type = std::to_string(code);
    const std::string four = " true/true true/true true/true true/true ";
    rows.push_back(type + "|2|" + type + " " + std::to_string(code < 12 ? code : code - 1) +
                   (code == 14   ? " 1 1261 1246 1243 1245 true/true true/false true/false true/false false"
                    : code == 10 ? " 2 513 1257 1258 1259" + four + "true"
                    : code == 3  ? " 2 513 1254 1255 1256" + four + "false"
                                 : " 2 513 1261 1262 1263" + four + "false"));
  }
  const auto captions = OfEachOption(""), on = OfEachOption(".on");
  ExpectEach({kOnboard, "dump;click cmdOK",
              "vType cmbType.listIndex vOption" + captions.substr(0, captions.rfind(' ')) +
                  on.substr(0, on.rfind(' ')) + " optOption(4).visible"},
             rows);
  ExpectEach({kOnboard, "dump", "title cmbType optOption(4)"},
             {"10|0|1192 Output1 [1248 1249 1214 1250 1216..1221 1251..1253 1915] 1260"});
  // The position replaces the number on entry.
  ExpectEach({kOnboard, "{2}", "vType"}, {"12|0|click cmdOK|13", "13|0||12"});
}

TEST(OnboardOutputs, OptionSurvivesAChangeOfTypeWhereItCan) {
  ExpectEach({kOnboard, "{2};dump;click cmdOK",
              "vOption" + OfEachOption(".value") + " optOption(1).enabled optOption(4).visible"},
             {"14|0||1 true false false false false false false", "14|1||1 false true false false false false false",
              "14|3||1 false false false true false false false",
              "10|4|select cmbType 9|3 false false false true false true false",
              "10|4|select cmbType 9;select cmbType 10|3 false false false true false true true",
              "10|4|select cmbType 13;select cmbType 9|0 true false false false false true false",
              "2|4|select cmbType 10|4 false false false false true true true",
              "2|3||3 false false false true false true false",
              "2|1|click optOption(3)|3 false false false true false true false"});
}

}  // namespace
}  // namespace orlin::testing
