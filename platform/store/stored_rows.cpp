#include "store/stored_rows.h"

#include <algorithm>
#include <random>
#include <thread>

#include <strings.h>

#include "OrlinCustomDialogs/public_classes.h"

namespace orlin {
namespace {

bool SameColumn(const std::string& a, const std::string& b) { return strcasecmp(a.c_str(), b.c_str()) == 0; }

const Connection::Row::value_type* ColumnNamed(const Connection::Row& columns, const std::string& name) {
  const auto found =
      std::find_if(columns.begin(), columns.end(), [&](const auto& column) { return SameColumn(column.first, name); });
  return found == columns.end() ? nullptr : &*found;
}

/// So that two programs that met do not meet again.
void WaitALittle() {
  static thread_local std::mt19937 random{std::random_device{}()};
  std::this_thread::sleep_for(std::chrono::milliseconds(std::uniform_int_distribution(1, 20)(random)));
}

}  // namespace

/// A column, as it was read or as it is about to be written.
class StoredRows::Field : public RecordsetField {
 public:
  Field(StoredRows& rows, std::string name) : rows_(rows), name_(std::move(name)) {}

  orlin::Value Value() override {
    const auto* column = rows_.begun_ ? ColumnNamed(*rows_.begun_, name_) : nullptr;
    if (column == nullptr && rows_.row_) column = ColumnNamed(*rows_.row_, name_);
    return column != nullptr ? column->second : orlin::Value();
  }

  void SetValue(const orlin::Value& value) override {
    if (!rows_.begun_) throw Failure(failures::InvalidCall);
    std::erase_if(*rows_.begun_, [&](const auto& column) { return SameColumn(column.first, name_); });
    rows_.begun_->emplace_back(name_, value);
  }

 private:
  StoredRows& rows_;
  std::string name_;
};

void StoredRows::Where::And(const std::string& expression, const Value& wanted) {
  Statement += (Statement.empty() ? " WHERE " : " AND ") + expression;
  if (wanted.IsEmpty()) {
    Statement += " IS NULL";
  } else {
    Statement += " = ?";
    Values.push_back(wanted);
  }
}

StoredRows::StoredRows(std::shared_ptr<Connection> connection, Query query, bool writes)
    : connection_(std::move(connection)), query_(std::move(query)), mayWrite_(writes) {
  table_ = connection_->Quoted(query_.Table);
  for (const auto& [column, wanted] : query_.Conditions) where_.And(connection_->Quoted(column), wanted);
  // Before the transaction, which a statement that fails may end.
  if (writes) identity_ = FindIdentity();
  try {
    UntilNoConflict([this] { Start(); });
  } catch (...) {
    Close();
    throw;
  }
}

std::string StoredRows::FindIdentity() {
  auto identity = connection_->RowIdentity();
  if (identity.empty() || !connection_->Exists()) return {};
  try {
    static_cast<void>(connection_->FirstRow("SELECT " + identity + " FROM " + table_ + " WHERE 1 = 0", {}));
    return identity;
  } catch (const Failure&) {
    return {};
  }
}

void StoredRows::Start() {
  if (mayWrite_ && connection_->Exists()) {
    connection_->Begin();
    inTransaction_ = true;
  }
  LookUp();
}

void StoredRows::LookUp() {
  row_.reset();
  if (!connection_->Exists() || !connection_->FindTable(query_.Table)) return;
  const auto columns = identity_.empty() ? "*" : table_ + ".*, " + identity_;
  row_ = connection_->FirstRow("SELECT " + columns + " FROM " + table_ + where_.Statement, where_.Values);
  if (!row_ || identity_.empty()) return;
  rowIdentity_ = row_->back().second;
  row_->pop_back();
}

bool StoredRows::IsOneRow(const Where& where) {
  const auto count = connection_->FirstRow("SELECT count(*) FROM " + table_ + where.Statement, where.Values);
  return count && Converted(count->front().second, ParameterKind::Long) == Value(1);
}

StoredRows::Where StoredRows::CurrentRow() {
  auto where = where_;
  if (!identity_.empty()) where.And(identity_, rowIdentity_);
  if (IsOneRow(where)) return where;
  for (const auto& [name, value] : *row_) where.And(connection_->Quoted(name), value);
  if (!IsOneRow(where)) throw Failure(failures::DatabaseCallFailed);
  return where;
}

RecordsetField& StoredRows::Fields(const std::string& name) {
  auto known = name;
  if (row_) {
    const auto* column = ColumnNamed(*row_, name);
    if (column == nullptr) throw Failure(failures::InvalidCall);
    known = column->first;  // a server may tell names apart by their case
  }
  auto& field = fields_[known];
  if (field == nullptr) field = std::make_unique<Field>(*this, known);
  return *field;
}

void StoredRows::Close() {
  if (inTransaction_) connection_->Rollback();
  inTransaction_ = false;
  mayWrite_ = false;
  begun_.reset();
}

void StoredRows::AddNew() {
  if (!mayWrite_) throw Failure(failures::DatabaseReadOnly);
  begun_.emplace();
}

void StoredRows::Edit() {
  AddNew();
  if (!row_) throw Failure(failures::InvalidCall);
}

void StoredRows::Update() {
  if (!begun_ || begun_->empty()) throw Failure(failures::InvalidCall);
  const auto columns = *begun_;
  Store([&] { row_ ? Change(columns) : Insert(columns); });
  begun_.reset();
}

void StoredRows::Delete() {
  if (!mayWrite_) throw Failure(failures::DatabaseReadOnly);
  if (!row_) throw Failure(failures::InvalidCall);
  Store([&] {
    if (!row_) return;  // another program was faster
    const auto where = CurrentRow();
    connection_->Execute("DELETE FROM " + table_ + where.Statement, where.Values);
  });
  row_.reset();
}

template <class Steps>
void StoredRows::UntilNoConflict(Steps steps) {
  const auto end = std::chrono::steady_clock::now() + connection_->Patience();
  while (true) {
    try {
      steps();
      return;
    } catch (const WriteConflict&) {
      if (inTransaction_) connection_->Rollback();
      inTransaction_ = false;
      if (std::chrono::steady_clock::now() >= end) throw;
      WaitALittle();
    }
  }
}

template <class Write>
void StoredRows::Store(Write write) {
  UntilNoConflict([&] {
    if (!inTransaction_) {
      connection_->Make();
      Start();
    }
    write();
    connection_->Commit();
    inTransaction_ = false;
  });
  mayWrite_ = false;
}

void StoredRows::Insert(const Connection::Row& columns) {
  if (!connection_->FindTable(query_.Table)) connection_->MakeTable(query_.Table);
  std::string names;
  std::string places;
  std::vector<Value> values;
  for (const auto& [name, value] : columns) {
    names += (values.empty() ? "" : ", ") + connection_->Quoted(name);
    places += values.empty() ? "?" : ", ?";
    values.push_back(value);
  }
  connection_->Execute("INSERT INTO " + table_ + " (" + names + ") VALUES (" + places + ")", values);
}

void StoredRows::Change(const Connection::Row& columns) {
  std::string settings;
  std::vector<Value> values;
  for (const auto& [name, value] : columns) {
    settings += (values.empty() ? "" : ", ") + connection_->Quoted(name) + " = ?";
    values.push_back(value);
  }
  const auto where = CurrentRow();
  values.insert(values.end(), where.Values.begin(), where.Values.end());
  connection_->Execute("UPDATE " + table_ + " SET " + settings + where.Statement, values);
}

}  // namespace orlin
