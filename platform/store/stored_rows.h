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
/// programs that write the same row do so one after the other. Of several rows that the query finds, the first is the
/// current one, and the others stay as they are.
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

    void And(const std::string& expression, const Value& wanted);
  };

  /// The expression that tells the rows of the table apart; empty where nothing but their columns does.
  [[nodiscard]] std::string FindIdentity();
  void Start();
  void LookUp();
  /// The current row and no other. A `Failure` where the database cannot tell it from another.
  [[nodiscard]] Where CurrentRow();
  [[nodiscard]] bool IsOneRow(const Where& where);
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
  bool mayWrite_;  ///< until something has been stored or given up
  bool inTransaction_ = false;
  std::string identity_;
  std::optional<Connection::Row> row_;
  Value rowIdentity_;                     ///< of the current row
  std::optional<Connection::Row> begun_;  ///< the new values of a row that was begun
  std::map<std::string, std::unique_ptr<RecordsetField>> fields_;
};

}  // namespace orlin
