#include "store/data_list_file.h"

#include <algorithm>
#include <array>
#include <utility>

#include <strings.h>

#include "files/text_file.h"

namespace orlin {
namespace {

constexpr std::array<std::pair<std::string_view, std::string DataListEntry::*>, 5> kFields{{
    {"DBTYPE", &DataListEntry::DBTYPE},
    {"DBDRV", &DataListEntry::DBDRV},
    {"DBDIR", &DataListEntry::DBDIR},
    {"DBNAME", &DataListEntry::DBNAME},
    {"CONNECT", &DataListEntry::CONNECT},
}};

bool SameName(std::string_view a, std::string_view b) {
  return a.size() == b.size() && strncasecmp(a.data(), b.data(), a.size()) == 0;
}

std::string_view WithoutBlanks(std::string_view text) {
  const auto first = text.find_first_not_of(" \t");
  return first == std::string_view::npos ? std::string_view()
                                         : text.substr(first, text.find_last_not_of(" \t") + 1 - first);
}

void ReadField(std::string_view line, DataListEntry& entry, const TextFile& file) {
  const auto equals = line.find('=');
  const auto name = WithoutBlanks(line.substr(0, equals));
  const auto field =
      std::find_if(kFields.begin(), kFields.end(), [&](const auto& known) { return SameName(known.first, name); });
  if (equals == std::string_view::npos || field == kFields.end()) {
    file.Fail("a line of an entry is DBTYPE, DBDRV, DBDIR, DBNAME or CONNECT, =, and a value");
  }
  entry.*field->second = WithoutBlanks(line.substr(equals + 1));
}

}  // namespace

DataListEntries BuiltInDataList() { return {{"PanelNotes", "ACCESS", "C", "\\accounts\\", "notes.db", ""}}; }

DataListEntries ReadDataList(const std::filesystem::path& path) {
  DataListEntries entries;
  TextFile file(path);
  while (file.Next()) {
    const auto line = WithoutBlanks(file.Line());
    if (line.empty() || line.front() == ';' || line.front() == '#') continue;
    if (line.front() == '[') {
      const auto name = WithoutBlanks(line.substr(1, line.size() - 2));
      if (line.back() != ']' || line.size() < 3 || name.empty()) file.Fail("an entry starts with its [name]");
      if (FindEntry(entries, name) != nullptr) file.Fail("there is an entry [" + std::string(name) + "] already");
      entries.push_back({std::string(name), "", "", "", "", ""});
    } else {
      if (entries.empty()) file.Fail("this stands before the first [name] of an entry");
      ReadField(line, entries.back(), file);
    }
  }
  return entries;
}

const DataListEntry* FindEntry(const DataListEntries& entries, std::string_view name) {
  const auto found =
      std::find_if(entries.begin(), entries.end(), [&](const auto& entry) { return SameName(entry.Name, name); });
  return found == entries.end() ? nullptr : &*found;
}

}  // namespace orlin
