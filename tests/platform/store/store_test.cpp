#include <atomic>
#include <functional>
#include <iostream>
#include <random>
#include <regex>

#include <sys/mman.h>
#include <sys/resource.h>

#include "OrlinCustomDialogs/failure.h"

#include "cipher/ccrypt.h"
#include "store/data_list.h"
#include "store/odbc_store.h"
#include "store/sqlite_store.h"
#include "support/dialog_test.h"
#include "support/postgres_server.h"
#include "support/temporary_folder.h"

// The account store on real databases: what one kind of store does, all do.

namespace orlin::testing {
namespace {

/// Runs while the tests do, once one of them needs it.
PostgresServer& Server() {
  static PostgresServer server;
  return server;
}

std::string QueryFor(const std::string& key) {
  const auto doubled = std::regex_replace(key, std::regex("'"), "''");
  return "SELECT * FROM [PanelNotes] WHERE [PanelGUID] = '" + doubled + "' AND [NoteHeader] = 'of " + doubled +
         "' AND [NoteTypeID] = 3";
}

constexpr const char* kKey = "P1";

/// One program that works on the store, as the notes dialog does.
class Program {
 public:
  explicit Program(DataListPlaces places, std::int16_t patience = 6) : list_(std::move(places)) {
    list_.SetTimeOutInterval(patience);
    list_.SetMaxTimeOut(patience);
    list_.SetMakesMissingFile(true);
  }
  ~Program() { Close(); }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  std::int32_t Open(DListComponent::Mode mode, const std::string& query = QueryFor(kKey)) {
    Close();
    list_.SetUserName(PostgresServer::kUser);
    list_.SetPassword(PostgresServer::kPassword);
    if (const auto failed = list_.DOPEN("PanelNotes", 0, db_); failed != 0) return failed;
    return list_.CreateDynaWise(db_, rs_, query, 2, "PanelNotes", mode);
  }
  void Close() {
    if (rs_ != nullptr) rs_->Close();
    if (db_ != nullptr) db_->Close();
    rs_.reset();
    db_.reset();
  }

  std::int32_t Begin(const std::string& memo, const std::string& key = kKey) {
    const auto failed = rs_->Eof() ? list_.AddNewDsWise(rs_, 2, "") : list_.EditDsWise(rs_, 2, "");
    if (failed != 0) return failed;
    rs_->Fields("PanelGUID").SetValue(key);
    rs_->Fields("NoteHeader").SetValue("of " + key);
    rs_->Fields("NoteTypeID").SetValue(std::int32_t{3});
    rs_->Fields("Memo").SetValue(memo);
    return 0;
  }
  std::int32_t Update() { return list_.UpdateDsWise(rs_, 2, ""); }
  RecordsetField& Field(const std::string& name) { return rs_->Fields(name); }

  std::int32_t Save(const std::string& memo, const std::string& key = kKey) {
    std::int32_t result = Open(DListComponent::Writing, QueryFor(key));
    if (result == 0) result = Begin(memo, key);
    if (result == 0) result = Update();
    Close();
    return result;
  }
  std::int32_t Delete(const std::string& key = kKey) {
    const auto failed = Open(DListComponent::Writing, QueryFor(key));
    return failed != 0 ? failed : list_.DeleteDsWise(rs_, 2, "");
  }
  /// Empty where there is no row.
  Value Read(const std::string& key = kKey) {
    EXPECT_EQ(Open(DListComponent::Reading, QueryFor(key)), 0);
    return rs_ == nullptr || rs_->Eof() ? Value() : rs_->Fields("memo").Value();
  }

 private:
  DataList list_;
  DatabasePtr db_;
  RecordsetPtr rs_;
};

/// A kind of store: its data list, and a way into it past the store.
struct Kind {
  const char* Name;
  const char* Type;
  std::string (*Connect)(const std::filesystem::path& file);
};

const Kind kKinds[] = {
    {"Sqlite", "ACCESS", [](const auto&) { return std::string(); }},
    {"PostgresByOdbc", "ODBC", [](const auto&) { return Server().Connect(); }},
    {"SqliteByOdbc", "odbc", [](const auto& file) { return "Driver=SQLite3;Timeout=100;Database=" + file.string(); }}};

std::shared_ptr<Connection> ConnectByOdbc(const std::string& connect) {
  return OpenOdbc(connect, {PostgresServer::kUser, PostgresServer::kPassword});
}

void MakeTable(Connection& direct, const std::string& constraint) {
  direct.Execute("DROP TABLE IF EXISTS \"PanelNotes\"", {});
  direct.Execute(R"(CREATE TABLE "PanelNotes" ("PanelGUID" TEXT, "NoteHeader" TEXT,
                    "NoteTypeID" INTEGER, "Memo" TEXT )" +
                     constraint + ")",
                 {});
}

class Store : public ::testing::TestWithParam<Kind> {
 protected:
  // No key of the table: what keeps rows from being doubled is the store.
  Store() { MakeTable(*Direct(), "CHECK (\"Memo\" <> 'refused')"); }
  [[nodiscard]] std::shared_ptr<Connection> Direct() const {
    std::filesystem::create_directories(File.parent_path());
    if (!Connect.empty()) return ConnectByOdbc(Connect);
    auto connection = OpenSqlite(File, {.MakesMissingFile = true});
    connection->Make();
    return connection;
  }
  [[nodiscard]] Value Count(const std::string& condition = "1 = 1") const {
    return Direct()->FirstRow("SELECT count(*) AS n FROM \"PanelNotes\" WHERE " + condition, {})->at(0).second;
  }
  /// Rows of the same key.
  void Insert(const std::vector<std::string>& memos) const {
    for (const auto& memo : memos) {
      Direct()->Execute("INSERT INTO \"PanelNotes\" VALUES ('P1', 'of P1', 3, " + memo + ")", {});
    }
  }

  const TemporaryFolder Drives;
  const std::filesystem::path File = Drives.Path() / "c" / "accounts" / "notes.db";
  const std::string Connect = GetParam().Connect(File);
  const DataListPlaces Places{{{{"PanelNotes", GetParam().Type, "C", "\\accounts\\", "notes.db", Connect}}},
                              Drives.Path()};
  Program One{Places};
};

INSTANTIATE_TEST_SUITE_P(All, Store, ::testing::ValuesIn(kKinds),
                         [](const auto& kind) { return std::string(kind.param.Name); });

TEST_P(Store, EveryValueReachesItsOwnRowAndNoOther) {
  std::string longest;
  for (int i = 0; i < 15500; ++i) longest += i % 2 == 0 ? "日" : "😀";
  const std::vector<std::string> texts{
      "x", "x' OR '1'='1", "'; DELETE FROM \"PanelNotes\"; --", "[a] % _ ? {fn x} \\ \" :n $1", " \r\n\t\n\r ", "ü€日😀",
      "",  longest};
  const auto keyOf = [](const std::string& text) { return text.substr(0, 200 * 7); };
  for (const auto& text : texts) {
    EXPECT_EQ(One.Read(keyOf(text)), Value()) << text;
    EXPECT_EQ(One.Save(text, keyOf(text)), 0) << text;
  }
  for (const auto& text : texts) {
    EXPECT_EQ(One.Read(keyOf(text)), text);
    EXPECT_EQ(One.Save(text + "2", keyOf(text)), 0) << text;
  }
  for (auto left = static_cast<std::int32_t>(texts.size()); const auto& text : texts) {
    EXPECT_EQ(One.Read(keyOf(text)), text + "2");
    EXPECT_EQ(One.Delete(keyOf(text)), 0);
    EXPECT_EQ(Count(), --left);
  }
}

TEST_P(Store, WhatWasBegunAndNotStoredIsGivenUp) {
  ASSERT_EQ(One.Save("old"), 0);
  ASSERT_EQ(One.Open(DListComponent::Writing), 0);
  ASSERT_EQ(One.Begin("new"), 0);
  One.Close();
  EXPECT_EQ(One.Read(), "old");
  EXPECT_EQ(One.Begin("new"), failures::DatabaseReadOnly) << "opened for reading";
}

TEST_P(Store, TheLastValueOfAFieldCounts) {
  for (const std::string memo : {"new row", "changed row"}) {
    ASSERT_EQ(One.Open(DListComponent::Writing), 0);
    ASSERT_EQ(One.Begin("first"), 0);
    One.Field("Memo").SetValue(memo);
    EXPECT_EQ(One.Field("MEMO").Value(), memo);
    EXPECT_EQ(One.Update(), 0);
    EXPECT_EQ(One.Read(), memo);
  }
  EXPECT_EQ(One.Field("NOTETYPEID").Value(), std::int32_t{3});
  EXPECT_THROW(One.Field("Notes"), Failure);
}

TEST_P(Store, TheCurrentRowAloneIsChangedOrDeleted) {
  Insert({"'same'", "'same'", "'other'", "NULL"});
  EXPECT_EQ(One.Save("new"), 0);
  EXPECT_EQ(Count("\"Memo\" = 'new'"), 1);
  for (int rows = 4; rows > 0; --rows) {
    EXPECT_EQ(Count(), rows);
    EXPECT_EQ(One.Delete(), 0);
  }
}

TEST_P(Store, RowsThatTheirColumnsAloneTellApartAreChangedUnlessTheyAreAlike) {
  const bool onServer = GetParam().Name == std::string("PostgresByOdbc");
  const auto direct = Direct();
  direct->Execute(R"(ALTER TABLE "PanelNotes" RENAME TO "Rows")", {});
  direct->Execute(onServer ? R"(CREATE VIEW "PanelNotes" AS SELECT * FROM "Rows")"
                           : R"(CREATE TABLE "PanelNotes" ("PanelGUID" TEXT, "NoteHeader" TEXT, "NoteTypeID" INTEGER,
                                "Memo" TEXT PRIMARY KEY) WITHOUT ROWID)",
                  {});
  Insert({"'a'", "'b'"});
  EXPECT_EQ(One.Save("new"), 0);
  EXPECT_EQ(Count("\"Memo\" = 'new'"), 1);
  EXPECT_EQ(Count(), 2);
  if (!onServer) return;
  direct->Execute("UPDATE \"PanelNotes\" SET \"Memo\" = 'alike'", {});
  EXPECT_EQ(One.Delete(), failures::DatabaseCallFailed);
  One.Close();
  EXPECT_EQ(Count(), 2);
  direct->Execute("DROP TABLE \"Rows\" CASCADE", {});
}

TEST_P(Store, ALockThatStandsIsToldAfterTheTimeOutAndKeepsNoReader) {
  ASSERT_EQ(One.Save("old"), 0);
  const auto other = Direct();
  other->Begin();
  other->Execute("UPDATE \"PanelNotes\" SET \"Memo\" = ?", {"other"});
  EXPECT_EQ(Program(Places, 1).Save("new"), failures::DatabaseLocked);
  EXPECT_EQ(Program(Places).Read(), "old");
  other->Rollback();
  EXPECT_EQ(One.Read(), "old");
}

TEST_P(Store, WhatTheDatabaseWillNeverTakeIsRefusedAtOnce) {
  ASSERT_EQ(One.Save("old"), 0);
  const std::string withZero("a\0b", 3);
  const bool taken = One.Save(withZero) == 0;
  EXPECT_EQ(One.Read(), taken ? withZero : "old") << "never cut";
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(One.Save("refused"), failures::DatabaseCallFailed);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3));
}

TEST_P(Store, ProgramsThatSaveAtOnceAllEndAndDoubleNoRow) {
  constexpr int rounds = 20;
  std::atomic<int> failed = 0;
  const auto save = [&](const std::string& memo) {
    Program program(Places, 30);
    for (int i = 0; i < rounds; ++i) {
      if (program.Save(memo, std::to_string(i)) != 0) ++failed;
    }
  };
  std::thread other(save, "a");
  save("b");
  other.join();
  EXPECT_EQ(failed, 0);
  EXPECT_EQ(Count(), rounds);
}

TEST_P(Store, ATableThatIsMissingForGoodIsTold) {
  EXPECT_NE(One.Open(DListComponent::Reading, "SELECT * FROM [Panels]"), 0);
  EXPECT_EQ(One.Open(DListComponent::Reading, "SELECT * FROM [PanelNotes]; x"), failures::InvalidCall);
  DataList list(Places);
  RecordsetPtr rs;
  EXPECT_EQ(list.CreateDynaWise(nullptr, rs, QueryFor(kKey), 2, "", DListComponent::Reading), failures::NoObject);
  EXPECT_EQ(list.UpdateDsWise(nullptr, 2, ""), failures::NoObject);
}

class SqliteFile : public ::testing::Test {
 protected:
  const TemporaryFolder Drives;
  const std::filesystem::path File = Drives.Path() / "c" / "accounts" / "notes.db";
  const DataListPlaces Places{{}, Drives.Path()};
};

TEST_F(SqliteFile, IsMadeForItsOwnerOnlyAndOnlyWhereAsked) {
  DataList list(Places);
  DatabasePtr db;
  EXPECT_EQ(list.DOPEN("PanelNotes", 0, db), failures::CannotOpenDatabase);
  Program first(Places);
  Program second(Places);
  for (auto* program : {&first, &second}) {
    ASSERT_EQ(program->Open(DListComponent::Writing), 0);
    EXPECT_EQ(program->Begin("a"), 0);
  }
  EXPECT_FALSE(std::filesystem::exists(Drives.Path() / "c")) << "nothing is stored yet";
  EXPECT_EQ(first.Update(), 0);
  EXPECT_EQ(second.Update(), 0) << "finds the row of the other";
  EXPECT_EQ(OpenSqlite(File, {})->FirstRow("SELECT count(*) FROM PanelNotes", {})->at(0).second, 1);
  using std::filesystem::perms;
  EXPECT_EQ(std::filesystem::status(File).permissions(), perms::owner_read | perms::owner_write);
  EXPECT_EQ(std::filesystem::status(File.parent_path()).permissions(), perms::owner_all);
  // An empty file is a database without the table.
  std::filesystem::resize_file(File, 0);
  EXPECT_EQ(Program(Places).Read(), Value());
}

TEST_F(SqliteFile, EachFailureHasItsNumberAndLeavesTheRow) {
  ASSERT_EQ(Program(Places).Save("old"), 0);
  std::fstream file(File, std::ios::binary | std::ios::in | std::ios::out);
  constexpr std::streamoff writeVersion = 18;
  file.seekp(writeVersion).put('\x7').flush();  // as a later SQLite marks a file that this one may read only
  EXPECT_EQ(Program(Places).Save("new"), failures::DatabaseReadOnly);
  EXPECT_EQ(Program(Places).Read(), "old");
  file.seekp(writeVersion).put('\x1').flush();

  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{std::filesystem::file_size(File), RLIM_INFINITY};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  const auto noRoom = Program(Places).Save(std::string(100000, 'x'));
  const rlimit none{RLIM_INFINITY, RLIM_INFINITY};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &none), 0);
  EXPECT_EQ(noRoom, failures::DatabaseFull);
  EXPECT_EQ(Program(Places).Read(), "old");

  file.seekp(0) << "no database at all";
  file.flush();
  EXPECT_EQ(Program(Places).Save("new"), failures::CannotOpenDatabase);
}

/// One row that a child saves over and over, two texts in turn; the child is killed at any moment.
TEST_F(SqliteFile, AKilledProgramLeavesTheOldOrTheNewRowWhole) {
  constexpr int kills = 200;
  const std::string texts[] = {std::string(15500, 'a'), std::string(15500, 'b')};
  ASSERT_EQ(Program(Places).Save(texts[0]), 0);
  void* const shared =
      mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  ASSERT_NE(shared, MAP_FAILED);
  auto* const saves = new (shared) std::atomic<int>(0);
  std::mt19937 random(1);
  std::uniform_int_distribution moment(500, 40000);
  for (int i = 0; i < kills; ++i) {
    const auto child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      Program program(Places);
      for (int next = 0;; ++next) {
        if (program.Save(texts[next % 2]) != 0) _exit(1);
        ++*saves;
      }
    }
    // On a slow disk a child would never come to its first save.
    for (const int before = *saves; *saves == before && waitpid(child, nullptr, WNOHANG) == 0;) usleep(100);
    std::this_thread::sleep_for(std::chrono::microseconds(moment(random)));
    ASSERT_EQ(kill(child, SIGKILL), 0);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << "the child could not save";
    const auto row = Program(Places).Read();
    ASSERT_TRUE(row == texts[0] || row == texts[1]) << "after kill " << i;
  }
  std::cout << kills << " kills during " << *saves << " saves: every row whole\n";
  EXPECT_GT(*saves, kills);
  EXPECT_EQ(*OpenSqlite(File, {})->FirstRow("PRAGMA integrity_check", {})->at(0).second.Get<std::string>(), "ok");
  munmap(shared, sizeof(std::atomic<int>));
}

/// The notes dialog on a server, with the user and the password of the settings.
class NotesOnAServer : public ::testing::Test {
 protected:
  NotesOnAServer() {
    MakeTable(*ConnectByOdbc(Server().Connect()), R"(, PRIMARY KEY ("PanelGUID", "NoteHeader", "NoteTypeID"))");
  }
  static DialogRun Open(const std::string& password, const std::string& script, bool isInMemory = false) {
    PlayOptions options;
    options.DataList = "[PanelNotes]\nDBTYPE=ODBC\nCONNECT=" + Server().Connect() + "\n";
    options.Settings = std::string("[HKEY_LOCAL_MACHINE\\Software\\Varnek\\Tolmar\\Setup]\n\"WarningLevel\"=\"0\"\n") +
                       "\"UserName\"=\"" + PostgresServer::kUser + "\"\n\"Password\"=\"" + password + "\"\n";
    return Play("clsPanelNotes",
                {"PanelGUID=P1", "NoteHeader=\"d'accord\"", "NoteTypeID=3",
                 isInMemory ? "IsInMemory=true" : "IsInMemory=false"},
                script, options);
  }
  const std::string Password = CCrypt::EncryptString(PostgresServer::kPassword);
};

TEST_F(NotesOnAServer, AreStoredAndReadBack) {
  EXPECT_EQ(Open(Password, "type txtNote \"Zähler\"\nclick cmdAddNote\nclick cmdOK").Result, 0);
  EXPECT_EQ(Open(Password, "close").Argument("Content"), "Zähler");
}

TEST_F(NotesOnAServer, AFailureTellsNothingOfThePassword) {
  for (const auto& password : {CCrypt::EncryptString("wr0ng-secret"), std::string("1:nonsense-secret")}) {
    const auto run = Open(password, "answer 1\nclose");
    EXPECT_EQ(run.Result, password[2] == 'n' ? failures::InvalidCall : failures::CannotOpenDatabase);
    for (const auto& line : run.Lines) EXPECT_EQ(line.dump().find("secret"), std::string::npos) << line;
  }
}

TEST_F(NotesOnAServer, AServerThatGoesAwayIsAFailure) {
  Program program({DataListEntries{{"PanelNotes", "ODBC", "", "", "", Server().Connect()}}, {}}, 1);
  ASSERT_EQ(program.Open(DListComponent::Writing), 0);
  ASSERT_EQ(program.Begin("new"), 0);
  Server().Stop();
  EXPECT_EQ(program.Update(), failures::DatabaseCallFailed);
  program.Close();
  const auto run = Open(Password, "answer 1\nclick cmdOK", true);
  EXPECT_EQ(run.Result, failures::CannotOpenDatabase);
  Server().Start();
  EXPECT_EQ(Open(Password, "close").Result, 1);
}

}  // namespace
}  // namespace orlin::testing
