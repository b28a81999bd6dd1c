#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "OrlinCustomDialogs/components.h"
#include "OrlinCustomDialogs/failure.h"

namespace orlin {

/// Another program wrote the same row at the same moment: what was begun is to be done again.
class WriteConflict : public Failure {
 public:
  WriteConflict() : Failure(failures::DatabaseLocked) {}
};

/// An open database, in the few things that the store asks of any. Statements are SQL with `?` for each value; values
/// are texts and Longs. Everything but the ends of a transaction may raise a `Failure` of the store, or a
/// `WriteConflict`.
class Connection : public Database {
 public:
  using Row = std::vector<std::pair<std::string, Value>>;

  /// A name as it stands in a statement.
  [[nodiscard]] virtual std::string Quoted(const std::string& name) const = 0;

  /// Begins a transaction in which a row is looked up and written.
  virtual void Begin() = 0;
  virtual void Commit() = 0;
  virtual void Rollback() noexcept = 0;
  /// How long a write that met another one is tried again.
  [[nodiscard]] virtual std::chrono::seconds Patience() const noexcept = 0;

  /// False for a database that `Make` is still to make; nothing but that can be done with it.
  [[nodiscard]] virtual bool Exists() const noexcept { return true; }
  virtual void Make() {}
  /// Whether the table is there. One that is missing for good is a `Failure`; false means one that nobody has written
  /// to yet.
  [[nodiscard]] virtual bool FindTable(const std::string& table) = 0;
  /// Makes a table that `FindTable` does not find.
  virtual void MakeTable(const std::string& table) = 0;

  /// An expression that is a text of its own for each row of a table, while a transaction lasts; not every table has
  /// it. Empty where no table has.
  [[nodiscard]] virtual std::string RowIdentity() const = 0;
  [[nodiscard]] virtual std::optional<Row> FirstRow(const std::string& statement, const std::vector<Value>& values) = 0;
  virtual void Execute(const std::string& statement, const std::vector<Value>& values) = 0;
};

}  // namespace orlin
