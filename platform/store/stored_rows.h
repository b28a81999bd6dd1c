#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "store/connection.h"
#include "store/query.h"

namespace orlin {

/// The rows of a query on any connection. Opened for writing, it is one transaction from the lookup to the write: two
/// programs that write the same row do so one after the other.
class StoredRows : public Recordset {
 public:
  StoredRows(std::shared_ptr<Connection> connection, Query query, bool writes);
  StoredRows(const StoredRows&) = delete;
  StoredRows& operator=(const StoredRows&) = delete;
  ~StoredRows() override { Close(); }

  [[nodiscard]] bool Eof() override { return !row_; }
  [[nodiscard]] RecordsetField& Fields(const std::string& name) override;
  void Close() override;

  void AddNew();
  void Edit();
  void Update();
  void Delete();

 private:
  class Field;
  /// What the statements after WHERE say, and with which values.
  struct Where {
    std::string Statement;
    std::vector<Value> Values;
  };

  void LookUp();
  void Start();
  /// Does the steps again as long as another program comes between, and the connection has patience.
  template <class Steps>
  void UntilNoConflict(Steps steps);
  /// Writes, and commits; again from the lookup where another program came between.
  template <class Write>
  void Store(Write write);
  void Insert(const Connection::Row& columns);
  void Change(const Connection::Row& columns);

  std::shared_ptr<Connection> connection_;
  Query query_;
  std::string table_;
  Where where_;
  bool writes_;
  bool inTransaction_ = false;
  std::optional<Connection::Row> row_;
  std::optional<Connection::Row> begun_;  ///< the new values of a row that was begun
  std::map<std::string, std::unique_ptr<RecordsetField>> fields_;
};

}  // namespace orlin
