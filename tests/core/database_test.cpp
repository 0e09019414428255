#include "core/database.h"

#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <functional>
#include <random>

#include "base/file.h"
#include "base/tempfolder.h"

namespace tarvane {

namespace fs = std::filesystem;

namespace {

Database MakePlayers(const fs::path& path) {
    Database db(path, Database::Mode::Create);
    db.Execute(
        "CREATE TABLE Players (playerID INTEGER PRIMARY KEY AUTOINCREMENT, Name TEXT(6), Active BOOLEAN, Age BYTE, "
        "\"2B\" INTEGER, Pay LONG, Avg DOUBLE, Born DATE)");
    return db;
}

int NumberOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const DatabaseError& error) {
        return error.Number();
    }
    return 0;
}

std::string MessageOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const DatabaseError& error) {
        return error.what();
    }
    return "none";
}

void AddPlayer(Database& db, const std::string& name, int doubles) {
    Recordset rs = db.OpenRecordset("players");
    rs.AddNew();
    rs.Set("NAME", name);
    rs.Set("2b", doubles);
    rs.Update();
}

}  // namespace

TEST(Database, ColumnTypesShapeWhatIsStored) {
    TempFolder folder;
    Database db = MakePlayers(folder / "Korv A.mdb");
    Recordset rs = db.OpenRecordset("PLAYERS");
    rs.AddNew();
    rs.Set("name", "Jos\xC3\xA9 Mu\xC3\xB1oz");
    rs.Set("Active", 1);
    rs.Set("Age", 24.5);
    rs.Set("2B", 25.5);
    rs.Set("Pay", "-12");
    rs.Set("Avg", 1);
    rs.Set("Born", "1935-08-31");
    rs.Update();
    rs.MoveFirst();
    EXPECT_EQ(rs.GetText("NAME"), "Jos\xC3\xA9 M");
    EXPECT_EQ(rs.Get("active"), Value(std::int64_t{-1}));
    EXPECT_EQ(rs.GetInt("age"), 24);
    EXPECT_EQ(rs.GetInt("2b"), 26);
    EXPECT_EQ(rs.GetInt("pay"), -12);
    EXPECT_EQ(rs.Get("avg"), Value(1.0));
    EXPECT_EQ(rs.GetInt("playerID"), db.LastInsertId());

    rs.Edit();
    const std::string before = rs.GetText("Name");
    for (const auto& [field, value] : std::vector<std::pair<std::string, Value>>{
             {"Age", 256}, {"Age", -1}, {"2B", 32768}, {"2B", -32769.0}, {"Pay", 1e12}, {"Pay", 1e300}})
        EXPECT_EQ(NumberOf([&, f = field, v = value] { rs.Set(f, v); }), DatabaseError::kOverflow) << field;
    for (const auto& [field, value] : std::vector<std::pair<std::string, Value>>{
             {"Age", "old"}, {"Avg", ""}, {"Born", "8/31/1935"}, {"Born", "1935-13-01"}, {"Avg", NAN}})
        EXPECT_EQ(NumberOf([&, f = field, v = value] { rs.Set(f, v); }), DatabaseError::kDataType) << field;
    EXPECT_THAT(MessageOf([&] { rs.Set("Age", 256); }), testing::HasSubstr("Players.Age: 256 is outside"));
    rs.Set("Avg", Value{});
    rs.Update();
    EXPECT_TRUE(rs.IsNull("Avg"));
    EXPECT_EQ(rs.GetDouble("Avg", 0.25), 0.25);
    EXPECT_EQ(rs.GetText("Name"), before);
}

TEST(Database, RecordsetVerbs) {
    TempFolder folder;
    Database db = MakePlayers(folder / "Korv A.mdb");
    EXPECT_TRUE(db.OpenRecordset("Players").EndOfFile());
    EXPECT_TRUE(db.OpenRecordset("Players").BeginOfFile());
    for (int i = 1; i <= 5; ++i) AddPlayer(db, "P" + std::to_string(i), 10 - i);

    Recordset rs = db.OpenRecordset("Players", "\"2B\" >= ?", {std::int64_t{6}}, "\"2B\"");
    EXPECT_EQ(rs.RecordCount(), 4);
    EXPECT_EQ(rs.GetText("Name"), "P4");
    rs.Edit();
    rs.Set("2B", 0);  // leaves the condition, not the set
    EXPECT_EQ(rs.GetInt("2B"), 0);
    rs.MoveNext();  // without Update the change is lost
    EXPECT_EQ(NumberOf([&] { rs.Set("2B", 1); }), DatabaseError::kNotUpdating);
    EXPECT_EQ(NumberOf([&] { rs.Update(); }), DatabaseError::kNotUpdating);
    EXPECT_EQ(rs.GetText("Name"), "P3");
    rs.Delete();
    EXPECT_EQ(NumberOf([&] { rs.GetText("Name"); }), DatabaseError::kDeleted);
    rs.MoveNext();
    EXPECT_EQ(rs.GetText("Name"), "P2");
    rs.AddNew();
    rs.Set("Name", "New");
    rs.Update();
    EXPECT_EQ(rs.GetText("Name"), "P2");  // stays where it was
    EXPECT_EQ(rs.RecordCount(), 4);
    std::string seen;
    for (rs.MoveFirst(); !rs.EndOfFile(); rs.MoveNext()) seen += rs.GetText("Name") + ' ';
    EXPECT_EQ(seen, "P4 P2 P1 New ");
    EXPECT_EQ(NumberOf([&] { rs.GetText("Name"); }), DatabaseError::kNoCurrentRecord);
    rs.MoveLast();
    EXPECT_EQ(rs.GetText("Name"), "New");
    rs.Delete();
    rs.MoveLast();
    EXPECT_EQ(rs.GetText("Name"), "P1");
    EXPECT_EQ(NumberOf([&] { rs.Get("Nmae"); }), DatabaseError::kNoSuchField);
    rs.Close();
    EXPECT_EQ(NumberOf([&] { rs.AddNew(); }), DatabaseError::kClosed);
    EXPECT_EQ(db.OpenRecordset("Players").RecordCount(), 4);
}

TEST(Database, TwoSetsOverOneTable) {
    TempFolder folder;
    Database db = MakePlayers(folder / "Korv A.mdb");
    AddPlayer(db, "A", 1);
    AddPlayer(db, "B", 2);
    Recordset reader = db.OpenRecordset("Players");
    Recordset writer = db.OpenRecordset("Players");
    EXPECT_EQ(reader.GetInt("2B"), 1);
    writer.Edit();
    writer.Set("2B", 7);
    writer.Update();
    db.Execute("ALTER TABLE Players ADD COLUMN Late BYTE");
    reader.MoveFirst();
    EXPECT_EQ(reader.GetInt("2B"), 7);
    EXPECT_EQ(db.FieldCount("players"), 9);
    EXPECT_EQ(db.OpenRecordset("Players").GetInt("late", 3), 3);
    writer.MoveNext();
    reader.MoveNext();
    writer.Delete();
    EXPECT_EQ(NumberOf([&] { reader.GetInt("2B"); }), DatabaseError::kDeleted);
}

TEST(Database, NamesAreCaseInsensitiveAndErrorsSayWhere) {
    TempFolder folder;
    Database db = MakePlayers(folder / "Korv My League.mdb");
    EXPECT_TRUE(db.HasTable("pLAYERS"));
    EXPECT_THAT(db.TableNames(), testing::ElementsAre("Players"));
    EXPECT_EQ(db.ColumnNames("players").at(4), "2B");
    EXPECT_EQ(NumberOf([&] { db.OpenRecordset("NoTable"); }), DatabaseError::kNoSuchTable);
    EXPECT_EQ(NumberOf([&] { db.Prepare("SELECT * FROM NoTable"); }), DatabaseError::kNoSuchTable);
    EXPECT_EQ(NumberOf([&] { db.OpenRecordset("Players", "\"Nmae\" = 1"); }), DatabaseError::kNoSuchField);
    EXPECT_THAT(MessageOf([&] { db.OpenRecordset("Players").Get("Nmae"); }),
                testing::AllOf(testing::HasSubstr("Korv My League.mdb"), testing::HasSubstr("Nmae")));
    Recordset rs = db.OpenRecordset("Players", "Name = ?", {std::string("O'Neil'; DROP TABLE Players; --")});
    EXPECT_EQ(rs.RecordCount(), 0);
    EXPECT_TRUE(db.HasTable("Players"));
}

TEST(Database, TheFileAloneHoldsEverythingAfterClose) {
    TempFolder folder;
    Database db = MakePlayers(folder / "Korv A.mdb");
    AddPlayer(db, "A", 1);
    Recordset open = db.OpenRecordset("Players");
    Statement statement = db.Prepare("SELECT Name FROM Players");
    EXPECT_TRUE(statement.Step());
    db.Close();
    db.Close();
    EXPECT_FALSE(db.IsOpen());
    EXPECT_EQ(NumberOf([&] { statement.Step(); }), DatabaseError::kClosed);
    EXPECT_EQ(NumberOf([&] { open.Get("Name"); }), DatabaseError::kClosed);
    EXPECT_EQ(NumberOf([&] { db.HasTable("Players"); }), DatabaseError::kClosed);
    EXPECT_FALSE(fs::exists(folder / "Korv A.mdb-wal"));
    fs::rename(folder / "Korv A.mdb", folder / "copy.mdb");
    Database::Compact(folder / "copy.mdb", folder / "small.mdb");
    EXPECT_EQ(Database(folder / "small.mdb").OpenRecordset("Players").GetText("Name"), "A");
    EXPECT_NE(NumberOf([&] { Database::Compact(folder / "copy.mdb", folder / "small.mdb"); }), 0);
    EXPECT_NE(NumberOf([&] { Database(folder / "small.mdb", Database::Mode::Create); }), 0);
}

TEST(Database, RefusesWhatIsNotItsOwn) {
    TempFolder folder;
    WriteFile(folder / "empty.mdb", "");
    WriteFile(folder / "text.mdb", "SQLite is a nice store, but this is a letter to my aunt.");
    WriteFile(folder / "access.mdb", std::string("\0\1\0\0Standard Jet DB\0", 20));
    {
        Database db = MakePlayers(folder / "whole.mdb");
        for (int i = 0; i < 500; ++i) AddPlayer(db, "x", i);
    }
    std::string bytes = ReadFile(folder / "whole.mdb");
    WriteFile(folder / "short.mdb", bytes.substr(0, bytes.size() / 2));
    std::string foreign = bytes;
    foreign.replace(68, 4, "ABCD");
    WriteFile(folder / "foreign.mdb", foreign);
    for (const char* name : {"empty.mdb", "text.mdb", "access.mdb", "short.mdb", "foreign.mdb"}) {
        const std::string content = ReadFile(folder / name);
        EXPECT_EQ(NumberOf([&] { Database db(folder / name); }), DatabaseError::kNotADatabase) << name;
        EXPECT_THAT(MessageOf([&] { Database db(folder / name); }), testing::HasSubstr(name));
        EXPECT_EQ(ReadFile(folder / name), content) << name;
    }
    EXPECT_THAT(MessageOf([&] { Database db(folder / "access.mdb"); }), testing::HasSubstr("Access"));
    EXPECT_EQ(NumberOf([&] { Database db(folder / "none.mdb"); }), DatabaseError::kFileMissing);
    EXPECT_FALSE(fs::exists(folder / "none.mdb"));
    EXPECT_EQ(NumberOf([&] { Database db(folder.Path()); }), DatabaseError::kFileMissing);
}

TEST(Database, FlippedBytesNeverCrash) {
    TempFolder folder;
    {
        Database db = MakePlayers(folder / "whole.mdb");
        for (int i = 0; i < 300; ++i) AddPlayer(db, "name" + std::to_string(i), i);
    }
    const std::string bytes = ReadFile(folder / "whole.mdb");
    std::mt19937 random(11);
    int read = 0;
    for (int round = 0; round < 150; ++round) {
        std::string damaged = bytes;
        for (int i = 0; i < 20; ++i) damaged[random() % damaged.size()] = static_cast<char>(random());
        WriteFile(folder / "damaged.mdb", damaged);
        try {
            Database db(folder / "damaged.mdb");
            for (Recordset rs = db.OpenRecordset("Players"); !rs.EndOfFile(); rs.MoveNext()) rs.GetText("Name");
            ++read;
        } catch (const DatabaseError& error) {
            EXPECT_THAT(error.what(), testing::HasSubstr("damaged.mdb"));
        }
        fs::remove(folder / "damaged.mdb-wal");
        fs::remove(folder / "damaged.mdb-shm");
    }
    EXPECT_LT(read, 150);
}

TEST(Transaction, AllOrNothingAndNested) {
    TempFolder folder;
    Database db = MakePlayers(folder / "Korv A.mdb");
    {
        Transaction outer(db);
        AddPlayer(db, "A", 1);
        {
            Transaction inner(db);
            AddPlayer(db, "B", 1);
            inner.Commit();
        }
        db.Execute("ALTER TABLE Players ADD COLUMN Late BYTE");
    }
    EXPECT_EQ(db.OpenRecordset("Players").RecordCount(), 0);
    EXPECT_EQ(db.FieldCount("Players"), 8);
    {
        Transaction outer(db);
        AddPlayer(db, "A", 1);
        { Transaction inner(db); }  // only the outermost decides
        outer.Commit();
    }
    EXPECT_EQ(db.OpenRecordset("Players").RecordCount(), 1);
    Transaction pending(db);
    AddPlayer(db, "lost", 1);
    db.Close();
    EXPECT_EQ(Database(folder / "Korv A.mdb").OpenRecordset("Players").RecordCount(), 1);
}

TEST(Transaction, ACrashLeavesTheStateBeforeOrAfter) {
    TempFolder folder;
    MakePlayers(folder / "Korv A.mdb");
    const pid_t child = fork();
    if (child == 0) {
        Database db(folder / "Korv A.mdb");
        {
            Transaction done(db);
            for (int i = 0; i < 100; ++i) AddPlayer(db, "kept", i);
            done.Commit();
        }
        Transaction half(db);
        for (int i = 0; i < 300; ++i) AddPlayer(db, "half", i);
        _exit(0);  // no destructor runs
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    Database db(folder / "Korv A.mdb");
    EXPECT_EQ(db.OpenRecordset("Players").RecordCount(), 100);
    EXPECT_EQ(db.OpenRecordset("Players", "Name = 'half'").RecordCount(), 0);
}

TEST(Transaction, ABusyFileIsAnErrorAndNotAHang) {
    TempFolder folder;
    Database first = MakePlayers(folder / "Korv A.mdb");
    Database second(folder / "Korv A.mdb");
    second.Execute("PRAGMA busy_timeout = 50");
    Transaction held(first);
    EXPECT_NE(NumberOf([&] { Transaction refused(second); }), 0);
    AddPlayer(first, "A", 1);
    held.Commit();
    Transaction granted(second);
    AddPlayer(second, "B", 1);
    granted.Commit();
    EXPECT_EQ(first.OpenRecordset("Players").RecordCount(), 2);
}

}  // namespace tarvane
