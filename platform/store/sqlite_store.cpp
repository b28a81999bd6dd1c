#include "store/sqlite_store.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include <fcntl.h>
#include <sqlite3.h>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orlin {
namespace {

/// A table that the store makes by itself where a file lacks it.
struct KnownTable {
  const char* Name;
  const char* Columns;
};

constexpr std::array<KnownTable, 1> kKnownTables{{
    {"PanelNotes",
     "\"PanelGUID\" TEXT NOT NULL, \"NoteHeader\" TEXT NOT NULL, \"NoteTypeID\" INTEGER NOT NULL, "
     "\"Memo\" TEXT NOT NULL, PRIMARY KEY (\"PanelGUID\", \"NoteHeader\", \"NoteTypeID\")"},
}};

const KnownTable& KnownTableNamed(const std::string& name) {
  const auto known = std::find_if(kKnownTables.begin(), kKnownTables.end(),
                                  [&](const auto& one) { return strcasecmp(one.Name, name.c_str()) == 0; });
  if (known == kKnownTables.end()) throw Failure(failures::NoSuchTable);
  return *known;
}

std::int32_t FailureOf(int code) {
  switch (code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return failures::DatabaseLocked;
    case SQLITE_READONLY:
    case SQLITE_PERM:
      return failures::DatabaseReadOnly;
    case SQLITE_FULL:
      return failures::DatabaseFull;
    case SQLITE_CANTOPEN:
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
      return failures::CannotOpenDatabase;
    default:
      return failures::DatabaseCallFailed;
  }
}

void Check(int code) {
  if (code != SQLITE_OK && code != SQLITE_ROW && code != SQLITE_DONE) throw Failure(FailureOf(code));
}

/// For SQLite, a quota or a limit of files is not a disk that is full; for who saves a row, it is.
void CheckStep(int code, sqlite3* database) {
  if ((code & 0xff) == SQLITE_IOERR) {
    int ofFile = 0;
    sqlite3_file_control(database, "main", SQLITE_FCNTL_LAST_ERRNO, &ofFile);
    const int ofJournal = sqlite3_system_errno(database);
    for (const int limit : {EDQUOT, EFBIG}) {
      if (ofFile == limit || ofJournal == limit) throw Failure(failures::DatabaseFull);
    }
  }
  Check(code);
}

struct CloseDatabase {
  void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
};
struct CloseStatement {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using DatabaseHandle = std::unique_ptr<sqlite3, CloseDatabase>;
using StatementHandle = std::unique_ptr<sqlite3_stmt, CloseStatement>;

/// Makes the folders that are missing, for their owner only.
void MakeFolders(const std::filesystem::path& folder) {
  std::error_code unreachable;
  if (folder.empty() || std::filesystem::exists(folder, unreachable)) return;
  MakeFolders(folder.parent_path());
  if (mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST) throw Failure(failures::CannotOpenDatabase);
}

/// Makes an empty file, readable and writable by its owner only; SQLite takes it for an empty database. Its journal
/// gets the same permissions.
void MakeFile(const std::filesystem::path& file) {
  MakeFolders(file.parent_path());
  const int made = open(file.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (made >= 0) {
    close(made);
  } else if (errno != EEXIST) {
    throw Failure(failures::CannotOpenDatabase);
  }
}

bool IsMissing(const std::filesystem::path& file) {
  std::error_code unknown;
  return std::filesystem::symlink_status(file, unknown).type() == std::filesystem::file_type::not_found;
}

class SqliteConnection : public Connection {
 public:
  SqliteConnection(std::filesystem::path file, const SqliteOptions& options)
      : file_(std::move(file)), options_(options) {
    if (options_.ReadOnly || !options_.MakesMissingFile || !IsMissing(file_)) Open();
  }

  std::string Quoted(const std::string& name) const override {
    std::string quoted = "\"";
    for (const char c : name) quoted += c == '"' ? "\"\"" : std::string(1, c);
    return quoted + "\"";
  }

  // The lock for writing comes first: nobody can change the row between its lookup and the write.
  void Begin() override { Execute("BEGIN IMMEDIATE", {}); }
  void Commit() override { Execute("COMMIT", {}); }
  void Rollback() noexcept override {
    if (database_ != nullptr) sqlite3_exec(database_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
  }
  std::chrono::seconds Patience() const noexcept override { return options_.Patience; }

  bool Exists() const noexcept override { return database_ != nullptr || closed_; }
  void Make() override {
    if (Exists()) return;
    MakeFile(file_);
    Open();
  }
  bool FindTable(const std::string& table) override {
    if (FirstRow("SELECT name FROM sqlite_master WHERE name = ? COLLATE NOCASE", {table})) return true;
    static_cast<void>(KnownTableNamed(table));
    return false;
  }
  void MakeTable(const std::string& table) override {
    const auto& known = KnownTableNamed(table);
    Execute("CREATE TABLE " + Quoted(known.Name) + " (" + known.Columns + ")", {});
  }

  std::string RowIdentity() const override { return "CAST(_rowid_ AS TEXT)"; }

  std::optional<Row> FirstRow(const std::string& statement, const std::vector<Value>& values) override {
    const auto prepared = Prepare(statement, values);
    const int code = sqlite3_step(prepared.get());
    CheckStep(code, database_.get());
    if (code == SQLITE_DONE) return std::nullopt;
    Row row;
    for (int i = 0; i < sqlite3_column_count(prepared.get()); ++i) {
      row.emplace_back(sqlite3_column_name(prepared.get(), i), ColumnOf(*prepared, i));
    }
    return row;
  }

  void Execute(const std::string& statement, const std::vector<Value>& values) override {
    const auto prepared = Prepare(statement, values);
    CheckStep(sqlite3_step(prepared.get()), database_.get());
  }

  void Close() override {
    database_.reset();
    closed_ = true;
  }

 private:
  void Open() {
    const int access = options_.ReadOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(file_.c_str(), &opened, access, nullptr);
    DatabaseHandle database(opened);
    Check(code);
    Check(sqlite3_extended_result_codes(opened, 1));
    Check(sqlite3_busy_timeout(opened, static_cast<int>(std::chrono::milliseconds(options_.Patience).count())));
    Check(sqlite3_exec(opened, "PRAGMA synchronous = EXTRA", nullptr, nullptr, nullptr));
    // SQLite opens a file of any content; the first look into it tells whether it is a database.
    Check(sqlite3_exec(opened, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr));
    // Where it had another journal and nobody else uses it; a commit is safe with either.
    if (!options_.ReadOnly) sqlite3_exec(opened, "PRAGMA journal_mode = DELETE", nullptr, nullptr, nullptr);
    database_ = std::move(database);
  }

  StatementHandle Prepare(const std::string& statement, const std::vector<Value>& values) {
    if (database_ == nullptr) throw Failure(failures::NoObject);
    sqlite3_stmt* made = nullptr;
    Check(sqlite3_prepare_v2(database_.get(), statement.c_str(), -1, &made, nullptr));
    StatementHandle prepared(made);
    int place = 0;
    for (const auto& value : values) {
      ++place;
      if (const auto* text = value.Get<std::string>()) {
        Check(sqlite3_bind_text64(made, place, text->data(), text->size(), SQLITE_TRANSIENT, SQLITE_UTF8));
      } else {
        const auto* number = value.Get<std::int32_t>();
        if (number == nullptr) throw Failure(failures::TypeMismatch);
        Check(sqlite3_bind_int(made, place, *number));
      }
    }
    return prepared;
  }

  static Value ColumnOf(sqlite3_stmt& statement, int column) {
    switch (sqlite3_column_type(&statement, column)) {
      case SQLITE_NULL:
        return {};
      case SQLITE_INTEGER:
        return static_cast<std::int32_t>(sqlite3_column_int(&statement, column));
      default: {
        const auto* bytes = static_cast<const char*>(sqlite3_column_blob(&statement, column));
        const auto size = static_cast<std::size_t>(sqlite3_column_bytes(&statement, column));
        return size == 0 ? std::string() : std::string(bytes, size);
      }
    }
  }

  std::filesystem::path file_;
  SqliteOptions options_;
  DatabaseHandle database_;
  bool closed_ = false;
};

}  // namespace

std::shared_ptr<Connection> OpenSqlite(const std::filesystem::path& file, const SqliteOptions& options) {
  return std::make_shared<SqliteConnection>(file, options);
}

}  // namespace orlin
