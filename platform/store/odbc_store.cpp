#include "store/odbc_store.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

#include <sql.h>
#include <sqlext.h>

#include "store/utf16.h"

namespace orlin {
namespace {

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t));

// More characters than any variable-length column surely holds: from here on a value is bound as a long text.
constexpr std::size_t kMostOfVariableText = 4000;

// How databases name themselves.
constexpr std::string_view kSqlite = "SQLite";
constexpr std::string_view kPostgres = "PostgreSQL";

/// What a driver says of the last call: a state of five characters, and a number of its own.
struct Diagnosis {
  std::string State;
  SQLINTEGER Native = 0;
};

Diagnosis DiagnosisOf(SQLSMALLINT type, SQLHANDLE handle) {
  std::array<SQLCHAR, 6> state{};
  Diagnosis diagnosis;
  // Its text is left alone: it may quote the connection text.
  if (SQL_SUCCEEDED(SQLGetDiagRec(type, handle, 1, state.data(), &diagnosis.Native, nullptr, 0, nullptr))) {
    diagnosis.State = reinterpret_cast<const char*>(state.data());
  }
  return diagnosis;
}

/// Raises what a refused statement means.
[[noreturn]] void Refuse(const Diagnosis& diagnosis, bool isSqlite) {
  const std::string_view state = diagnosis.State;
  constexpr SQLINTEGER sqliteBusy = 5;
  constexpr SQLINTEGER sqliteLocked = 6;
  constexpr SQLINTEGER sqliteReadOnly = 8;
  constexpr SQLINTEGER sqliteFull = 13;
  const bool serialization = state.starts_with("40");
  const bool doubled = state == "23505" || state == "23000";  // others of the class are not mended by a new lookup
  if (serialization || doubled) throw WriteConflict();
  // The driver of SQLite has one state for everything.
  if (isSqlite && (diagnosis.Native == sqliteBusy || diagnosis.Native == sqliteLocked)) throw WriteConflict();
  if (isSqlite && diagnosis.Native == sqliteReadOnly) throw Failure(failures::DatabaseReadOnly);
  if (isSqlite && diagnosis.Native == sqliteFull) throw Failure(failures::DatabaseFull);
  // A statement that runs out of its time waited for another program: each is about one row.
  if (state == "55P03" || state == "HYT00" || state == "57014") throw Failure(failures::DatabaseLocked);
  if (state == "25006" || state.starts_with("42501")) throw Failure(failures::DatabaseReadOnly);
  if (state.starts_with("53")) throw Failure(failures::DatabaseFull);
  if (state == "42S02" || state == "42P01") throw Failure(failures::NoSuchTable);
  throw Failure(failures::DatabaseCallFailed);
}

template <SQLSMALLINT Type>
struct FreeHandle {
  void operator()(SQLHANDLE handle) const { SQLFreeHandle(Type, handle); }
};
template <SQLSMALLINT Type>
using Handle = std::unique_ptr<void, FreeHandle<Type>>;
using Environment = Handle<SQL_HANDLE_ENV>;
using Link = Handle<SQL_HANDLE_DBC>;
using Statement = Handle<SQL_HANDLE_STMT>;

template <SQLSMALLINT Type>
Handle<Type> Allocate(SQLHANDLE parent) {
  SQLHANDLE handle = SQL_NULL_HANDLE;
  if (!SQL_SUCCEEDED(SQLAllocHandle(Type, parent, &handle))) throw Failure(failures::DatabaseCallFailed);
  return Handle<Type>(handle);
}

SQLPOINTER AsPointer(SQLULEN number) {
  SQLPOINTER pointer = nullptr;
  std::memcpy(&pointer, &number, sizeof(pointer));
  return pointer;
}

SQLCHAR* Characters(std::string& text) { return reinterpret_cast<SQLCHAR*>(text.data()); }

/// A value of a connection text, whatever is in it. Braces stand only where they have to: some drivers take them for
/// a part of a user name.
std::string Braced(std::string_view value) {
  if (value.find_first_of("[]{}(),;?*=!@ ") == std::string_view::npos) return std::string(value);
  std::string braced = "{";
  for (const char c : value) braced += c == '}' ? "}}" : std::string(1, c);
  return braced + "}";
}

void Wipe(std::string& text) { std::fill_n(static_cast<volatile char*>(text.data()), text.size(), '\0'); }

/// The values of a statement, kept while it runs.
class BoundValues {
 public:
  BoundValues(SQLHANDLE statement, const std::vector<Value>& values) : held_(values.size()) {
    for (std::size_t i = 0; i < values.size(); ++i)
      Bind(statement, static_cast<SQLUSMALLINT>(i + 1), values[i], held_[i]);
  }

 private:
  struct Held {
    std::u16string Text;
    SQLINTEGER Number = 0;
    SQLLEN Bytes = 0;
  };

  static void Bind(SQLHANDLE statement, SQLUSMALLINT place, const Value& value, Held& held) {
    SQLRETURN bound = SQL_ERROR;
    if (const auto* text = value.Get<std::string>()) {
      // Drivers end a text there, without a word.
      if (text->find('\0') != std::string::npos) throw Failure(failures::DatabaseCallFailed);
      held.Text = Utf16From(*text);
      const auto length = held.Text.size();
      held.Bytes = static_cast<SQLLEN>(length * sizeof(char16_t));
      const SQLSMALLINT type = length > kMostOfVariableText ? SQL_WLONGVARCHAR : SQL_WVARCHAR;
      bound = SQLBindParameter(statement, place, SQL_PARAM_INPUT, SQL_C_WCHAR, type, std::max<SQLULEN>(length, 1), 0,
                               held.Text.data(), held.Bytes, &held.Bytes);
    } else if (const auto* number = value.Get<std::int32_t>()) {
      held.Number = *number;
      bound =
          SQLBindParameter(statement, place, SQL_PARAM_INPUT, SQL_C_SLONG, SQL_INTEGER, 0, 0, &held.Number, 0, nullptr);
    }
    if (!SQL_SUCCEEDED(bound)) throw Failure(failures::TypeMismatch);
  }

  std::vector<Held> held_;
};

class OdbcConnection : public Connection {
 public:
  OdbcConnection(Environment environment, Link link, const OdbcOptions& options)
      : environment_(std::move(environment)),
        link_(std::move(link)),
        patience_(options.Patience),
        mostForStatement_(options.MostForStatement),
        quote_(Information(SQL_IDENTIFIER_QUOTE_CHAR)),
        dbms_(Information(SQL_DBMS_NAME)) {}
  OdbcConnection(const OdbcConnection&) = delete;
  OdbcConnection& operator=(const OdbcConnection&) = delete;
  ~OdbcConnection() override { OdbcConnection::Close(); }

  std::string Quoted(const std::string& name) const override {
    if (quote_ == " ") return name;  // the source has no quotation marks for names
    std::string quoted = quote_;
    for (const char c : name) quoted += std::string(quote_.starts_with(c) ? 2 : 1, c);
    return quoted + quote_;
  }

  void Begin() override {
    // A row that both of two programs look up can then be written by one of them only.
    SetAttribute(SQL_ATTR_TXN_ISOLATION, SQL_TXN_SERIALIZABLE);
    SetAttribute(SQL_ATTR_AUTOCOMMIT, SQL_AUTOCOMMIT_OFF);
  }
  void Commit() override {
    if (!SQL_SUCCEEDED(SQLEndTran(SQL_HANDLE_DBC, link_.get(), SQL_COMMIT))) {
      Refuse(DiagnosisOf(SQL_HANDLE_DBC, link_.get()), dbms_ == kSqlite);
    }
    SQLSetConnectAttr(link_.get(), SQL_ATTR_AUTOCOMMIT, AsPointer(SQL_AUTOCOMMIT_ON), 0);
  }
  void Rollback() noexcept override {
    if (link_ == nullptr) return;
    SQLEndTran(SQL_HANDLE_DBC, link_.get(), SQL_ROLLBACK);
    SQLSetConnectAttr(link_.get(), SQL_ATTR_AUTOCOMMIT, AsPointer(SQL_AUTOCOMMIT_ON), 0);
  }
  std::chrono::seconds Patience() const noexcept override { return patience_; }

  // The lookup itself tells of a table that is missing, and its administrator makes it.
  bool FindTable(const std::string& /*table*/) override { return true; }
  void MakeTable(const std::string& /*table*/) override { throw Failure(failures::NoSuchTable); }

  std::string RowIdentity() const override {
    if (dbms_ == kSqlite) return "CAST(_rowid_ AS TEXT)";
    // A row of a table that is split up is unique within its part.
    if (dbms_ == kPostgres) return "CAST(tableoid AS text) || CAST(ctid AS text)";
    return {};
  }

  std::optional<Row> FirstRow(const std::string& text, const std::vector<Value>& values) override {
    const auto statement = NewStatement();
    const BoundValues bound(statement.get(), values);
    Run(statement, text);
    const auto fetched = SQLFetch(statement.get());
    if (fetched == SQL_NO_DATA) return std::nullopt;
    Check(fetched, statement);
    SQLSMALLINT count = 0;
    Check(SQLNumResultCols(statement.get(), &count), statement);
    Row row;
    for (SQLUSMALLINT column = 1; column <= count; ++column) row.push_back(ColumnOf(statement, column));
    return row;
  }

  void Execute(const std::string& text, const std::vector<Value>& values) override {
    const auto statement = NewStatement();
    const BoundValues bound(statement.get(), values);
    Run(statement, text);
  }

  void Close() override {
    if (link_ == nullptr) return;
    SQLEndTran(SQL_HANDLE_DBC, link_.get(), SQL_ROLLBACK);
    SQLDisconnect(link_.get());
    link_.reset();
  }

 private:
  void Check(SQLRETURN result, const Statement& statement) const {
    if (!SQL_SUCCEEDED(result)) Refuse(DiagnosisOf(SQL_HANDLE_STMT, statement.get()), dbms_ == kSqlite);
  }

  void SetAttribute(SQLINTEGER attribute, SQLULEN value) {
    if (link_ == nullptr) throw Failure(failures::NoObject);
    if (!SQL_SUCCEEDED(SQLSetConnectAttr(link_.get(), attribute, AsPointer(value), 0))) {
      Refuse(DiagnosisOf(SQL_HANDLE_DBC, link_.get()), dbms_ == kSqlite);
    }
  }

  std::string Information(SQLUSMALLINT what) const {
    std::array<SQLCHAR, 128> text{};
    SQLSMALLINT length = 0;
    if (!SQL_SUCCEEDED(SQLGetInfo(link_.get(), what, text.data(), static_cast<SQLSMALLINT>(text.size()), &length))) {
      throw Failure(failures::CannotOpenDatabase);
    }
    return reinterpret_cast<const char*>(text.data());
  }

  Statement NewStatement() const {
    if (link_ == nullptr) throw Failure(failures::NoObject);
    auto statement = Allocate<SQL_HANDLE_STMT>(link_.get());
    // A driver that knows no limit answers without one.
    SQLSetStmtAttr(statement.get(), SQL_ATTR_QUERY_TIMEOUT, AsPointer(static_cast<SQLULEN>(mostForStatement_.count())),
                   0);
    return statement;
  }

  void Run(const Statement& statement, std::string text) const {
    const auto result = SQLExecDirect(statement.get(), Characters(text), SQL_NTS);
    if (result != SQL_NO_DATA) Check(result, statement);
  }

  std::pair<std::string, Value> ColumnOf(const Statement& statement, SQLUSMALLINT column) const {
    std::array<SQLCHAR, 256> name{};
    SQLSMALLINT type = 0;
    Check(SQLDescribeCol(statement.get(), column, name.data(), static_cast<SQLSMALLINT>(name.size()), nullptr, &type,
                         nullptr, nullptr, nullptr),
          statement);
    const bool isNumber = type == SQL_INTEGER || type == SQL_SMALLINT || type == SQL_TINYINT || type == SQL_BIGINT;
    return {reinterpret_cast<const char*>(name.data()),
            isNumber ? NumberOf(statement, column) : TextOf(statement, column)};
  }

  Value NumberOf(const Statement& statement, SQLUSMALLINT column) const {
    SQLINTEGER number = 0;
    SQLLEN indicator = 0;
    Check(SQLGetData(statement.get(), column, SQL_C_SLONG, &number, sizeof(number), &indicator), statement);
    return indicator == SQL_NULL_DATA ? Value() : Value(static_cast<std::int32_t>(number));
  }

  Value TextOf(const Statement& statement, SQLUSMALLINT column) const {
    std::u16string text;
    std::array<char16_t, 4096> part{};
    constexpr SQLLEN size = sizeof(part);
    constexpr SQLLEN most = size - static_cast<SQLLEN>(sizeof(char16_t));  // one is the zero at the end
    while (true) {
      SQLLEN left = 0;
      const auto result = SQLGetData(statement.get(), column, SQL_C_WCHAR, part.data(), size, &left);
      if (result == SQL_NO_DATA) break;
      Check(result, statement);
      if (left == SQL_NULL_DATA) return {};
      const bool whole = left != SQL_NO_TOTAL && left <= most;
      text.append(part.data(), static_cast<std::size_t>(whole ? left : most) / sizeof(char16_t));
      if (whole) break;
    }
    return Utf8From(text);
  }

  Environment environment_;
  Link link_;
  std::chrono::seconds patience_;
  std::chrono::seconds mostForStatement_;
  std::string quote_;
  std::string dbms_;
};

}  // namespace

std::shared_ptr<Connection> OpenOdbc(const std::string& connect, const OdbcOptions& options) {
  auto environment = Allocate<SQL_HANDLE_ENV>(SQL_NULL_HANDLE);
  SQLSetEnvAttr(environment.get(), SQL_ATTR_ODBC_VERSION, AsPointer(SQL_OV_ODBC3), 0);
  auto link = Allocate<SQL_HANDLE_DBC>(environment.get());
  SQLSetConnectAttr(link.get(), SQL_ATTR_LOGIN_TIMEOUT, AsPointer(static_cast<SQLULEN>(options.Patience.count())), 0);

  std::string text = connect;
  if (!options.UserName.empty()) text += ";UID=" + Braced(options.UserName);
  if (!options.Password.empty()) text += ";PWD=" + Braced(options.Password);
  const auto result = SQLDriverConnect(link.get(), nullptr, Characters(text), static_cast<SQLSMALLINT>(text.size()),
                                       nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT);
  Wipe(text);
  if (!SQL_SUCCEEDED(result)) throw Failure(failures::CannotOpenDatabase);
  return std::make_shared<OdbcConnection>(std::move(environment), std::move(link), options);
}

}  // namespace orlin
