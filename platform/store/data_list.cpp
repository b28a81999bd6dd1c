#include "store/data_list.h"

#include <utility>

#include <strings.h>

#include "OrlinCustomDialogs/failure.h"

#include "files/text_file.h"
#include "store/drive_paths.h"
#include "store/odbc_store.h"
#include "store/sqlite_store.h"
#include "store/stored_rows.h"

namespace orlin {
namespace {

/// The number of the failure that ends an operation; 0 where none does.
template <class Operation>
std::int32_t ResultOf(Operation&& operation) noexcept {
  try {
    operation();
    return 0;
  } catch (const Failure& failure) {
    return failure.Number();
  } catch (const std::exception&) {
    return failures::DatabaseCallFailed;
  }
}

template <class Step>
std::int32_t OnRows(const RecordsetPtr& rs, Step step) noexcept {
  return ResultOf([&] {
    const auto rows = std::dynamic_pointer_cast<StoredRows>(rs);
    if (rows == nullptr) throw Failure(failures::NoObject);
    (*rows.*step)();
  });
}

bool IsType(const DataListEntry& entry, const char* type) { return strcasecmp(entry.DBTYPE.c_str(), type) == 0; }

}  // namespace

DataListEntries DataList::Entries() const {
  if (places_.Entries) return *places_.Entries;
  for (const auto& path : {networkPath_, localPath_}) {
    const auto file = FileAt(path, places_.DrivesFolder).value_or(path);
    if (!path.empty() && std::filesystem::is_regular_file(file)) return ReadDataList(file);
  }
  return BuiltInDataList();
}

DataListEntry DataList::EntryNamed(const std::string& name) const {
  const auto entries = Entries();
  const auto* entry = FindEntry(entries, name);
  if (entry == nullptr) throw Failure(failures::InvalidCall);
  return *entry;
}

std::int32_t DataList::DgetDLIST(const std::string& sListName, std::int16_t /*reserved*/) {
  return ResultOf([&] { entry_ = EntryNamed(sListName); });
}

std::int32_t DataList::DOPEN(const std::string& sListName, std::int16_t /*reserved*/, DatabasePtr& db) {
  const auto result = ResultOf([&] { db = Open(EntryNamed(sListName)); });
  // They are for one opening.
  userName_.clear();
  password_.assign(password_.size(), '\0');
  password_.clear();
  return result;
}

DatabasePtr DataList::Open(const DataListEntry& entry) {
  const std::chrono::seconds patience(timeOutInterval_);
  if (IsType(entry, "ODBC")) {
    return OpenOdbc(entry.CONNECT, {userName_, password_, patience, std::chrono::seconds(maxTimeOut_)});
  }
  const auto file = FileAt(entry.DBDRV + ":" + entry.DBDIR + entry.DBNAME, places_.DrivesFolder);
  if (!IsType(entry, "ACCESS") || !file) throw Failure(failures::CannotOpenDatabase);
  return OpenSqlite(*file, {.MakesMissingFile = makesMissingFile_, .ReadOnly = false, .Patience = patience});
}

std::int32_t DataList::CreateDynaWise(const DatabasePtr& db, RecordsetPtr& rs, const std::string& query,
                                      std::int16_t /*kind*/, const std::string& /*table*/, Mode mode) {
  return ResultOf([&] {
    auto connection = std::dynamic_pointer_cast<Connection>(db);
    if (connection == nullptr) throw Failure(failures::NoObject);
    rs = std::make_shared<StoredRows>(std::move(connection), ParseQuery(query), mode == Writing);
  });
}

std::int32_t DataList::AddNewDsWise(const RecordsetPtr& rs, std::int16_t /*kind*/, const std::string& /*reserved*/) {
  return OnRows(rs, &StoredRows::AddNew);
}

std::int32_t DataList::EditDsWise(const RecordsetPtr& rs, std::int16_t /*kind*/, const std::string& /*reserved*/) {
  return OnRows(rs, &StoredRows::Edit);
}

std::int32_t DataList::UpdateDsWise(const RecordsetPtr& rs, std::int16_t /*kind*/, const std::string& /*reserved*/) {
  return OnRows(rs, &StoredRows::Update);
}

std::int32_t DataList::DeleteDsWise(const RecordsetPtr& rs, std::int16_t /*kind*/, const std::string& /*reserved*/) {
  return OnRows(rs, &StoredRows::Delete);
}

}  // namespace orlin
