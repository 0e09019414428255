#include "sample/files.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <initializer_list>
#include <numeric>
#include <sstream>
#include <system_error>
#include <tuple>
#include <vector>

#include "base/error.h"
#include "sample/sampleleague.h"

namespace tarvane::sample {
namespace {

// A table under construction: fields are appended one by one, a row ends with End.
class Table {
  public:
    explicit Table(const char* header) { text_ << header << '\n'; }

    Table& operator<<(const std::string& field) { return Put(field); }
    Table& operator<<(const char* field) { return Put(field); }
    Table& operator<<(char field) { return Put(std::string(1, field)); }
    Table& operator<<(int field) { return Put(std::to_string(field)); }
    Table& operator<<(std::initializer_list<int> fields) {
        for (const int field : fields) *this << field;
        return *this;
    }
    Table& Empty(int count) {
        for (int i = 0; i < count; ++i) Put("");
        return *this;
    }
    // A quotient with so many decimals; empty if there is nothing to divide by.
    Table& Ratio(double top, double bottom, int decimals) {
        if (bottom == 0) return Put("");
        char buffer[32];
        std::snprintf(buffer, sizeof buffer, "%.*f", decimals, top / bottom);
        return Put(buffer);
    }
    void End() {
        text_ << '\n';
        first_ = true;
    }
    std::string Text() const { return text_.str(); }

  private:
    Table& Put(const std::string& field) {
        if (!first_) text_ << ',';
        first_ = false;
        text_ << field;
        return *this;
    }

    std::ostringstream text_;
    bool first_ = true;
};

// A stint in the order of the tables: by player, then stint.
struct Entry {
    const Player* player;
    const Stint* stint;
    int number;
};

std::vector<Entry> EntriesOf(const MadeLeague& league) {
    std::vector<Entry> entries;
    for (const Player& player : league.players)
        for (std::size_t i = 0; i < player.stints.size(); ++i)
            if (player.stints[i].bat.G > 0) entries.push_back({&player, &player.stints[i], static_cast<int>(i) + 1});
    std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
        return std::tie(a.player->id, a.number) < std::tie(b.player->id, b.number);
    });
    return entries;
}

const char* LeagueCode(const Club& club) {
    return club.american ? "AL" : "NL";
}

void PutKey(Table& table, const MadeLeague& league, const Entry& entry) {
    const Club& club = league.clubs[entry.stint->club];
    table << entry.player->id << kSampleYear << entry.number << club.teamID << LeagueCode(club);
}

std::string BattingTable(const MadeLeague& league, const std::vector<Entry>& entries) {
    Table table("playerID,yearID,stint,teamID,lgID,G,AB,R,H,2B,3B,HR,RBI,SB,CS,BB,SO,IBB,HBP,SH,SF,GIDP");
    for (const Entry& entry : entries) {
        const MadeBatting& b = entry.stint->bat;
        PutKey(table, league, entry);
        table << std::initializer_list<int>{b.G,  b.AB, b.R,  b.H,   b.Doubles, b.Triples, b.HR, b.RBI, b.SB,
                                            b.CS, b.BB, b.SO, b.IBB, b.HBP,     b.SH,      b.SF, b.GIDP};
        table.End();
    }
    return table.Text();
}

std::string PitchingTable(const MadeLeague& league, const std::vector<Entry>& entries) {
    Table table(
        "playerID,yearID,stint,teamID,lgID,W,L,G,GS,CG,SHO,SV,IPouts,H,ER,HR,BB,SO,BAOpp,ERA,IBB,WP,HBP,BK,BFP,GF,R,SH,"
        "SF,"
        "GIDP");
    for (const Entry& entry : entries) {
        const MadePitching& p = entry.stint->pitch;
        if (p.G == 0) continue;
        PutKey(table, league, entry);
        table << std::initializer_list<int>{p.W,      p.L, p.G,  p.GS, p.CG, p.SHO, p.SV,
                                            p.IPouts, p.H, p.ER, p.HR, p.BB, p.SO};
        table.Ratio(p.H, p.BFP - p.BB - p.HBP - p.SH - p.SF, 3).Ratio(27.0 * p.ER, p.IPouts, 2);
        table << std::initializer_list<int>{p.IBB, p.WP, p.HBP, p.BK, p.BFP, p.GF, p.R, p.SH, p.SF, p.GIDP};
        table.End();
    }
    return table.Text();
}

constexpr const char* kFieldingHeader = "playerID,yearID,stint,teamID,lgID,POS,G,GS,InnOuts,PO,A,E,DP,PB,WP,SB,CS,ZR";

void PutFielding(Table& table, const MadeLeague& league, const Entry& entry, const std::string& pos,
                 const MadeFielding& f) {
    PutKey(table, league, entry);
    table << pos << std::initializer_list<int>{f.G, f.GS, f.InnOuts, f.PO, f.A, f.E, f.DP};
    if (pos == "C")
        (table << f.PB).Empty(1) << std::initializer_list<int>{f.SB, f.CS};
    else
        table.Empty(4);
    table.Empty(1).End();
}

// The three outfields in one line; a game in two of them counts once.
MadeFielding OutfieldOf(const Stint& stint) {
    MadeFielding sum;
    for (const Spot spot : {Spot::LF, Spot::CF, Spot::RF}) {
        const MadeFielding& f = stint.field[Index(spot)];
        sum.InnOuts += f.InnOuts;
        sum.PO += f.PO;
        sum.A += f.A;
        sum.E += f.E;
        sum.DP += f.DP;
    }
    sum.G = stint.outfieldG;
    sum.GS = stint.outfieldGS;
    return sum;
}

std::string FieldingTable(const MadeLeague& league, const std::vector<Entry>& entries) {
    Table table(kFieldingHeader);
    for (const Entry& entry : entries) {
        for (const Spot spot : kFieldSpots) {
            const MadeFielding& f = entry.stint->field[Index(spot)];
            if (spot == Spot::LF && entry.stint->outfieldG > 0)
                PutFielding(table, league, entry, "OF", OutfieldOf(*entry.stint));
            if (f.G > 0 && !IsOutfield(spot)) PutFielding(table, league, entry, SpotName(spot), f);
        }
    }
    return table.Text();
}

std::string OutfieldTable(const MadeLeague& league, const std::vector<Entry>& entries) {
    Table table(kFieldingHeader);
    for (const Entry& entry : entries)
        for (const Spot spot : {Spot::CF, Spot::LF, Spot::RF})
            if (entry.stint->field[Index(spot)].G > 0)
                PutFielding(table, league, entry, SpotName(spot), entry.stint->field[Index(spot)]);
    return table.Text();
}

std::string PeopleTable(const std::vector<Entry>& entries) {
    Table table(
        "playerID,birthYear,birthMonth,birthDay,birthCountry,birthState,birthCity,deathYear,deathMonth,deathDay,"
        "deathCountry,"
        "deathState,deathCity,nameFirst,nameLast,nameGiven,weight,height,bats,throws,debut,finalGame,retroID,bbrefID");
    for (const Entry& entry : entries) {
        const Player& man = *entry.player;
        if (&man.stints.back() != entry.stint) continue;  // once a man; his last stint always has games if any has
        table << man.id << man.birthYear << man.birthMonth << man.birthDay << "USA";
        table.Empty(1) << man.city;
        table.Empty(6) << man.given << man.surname << man.given << man.weight << man.height << man.bats << man.throws;
        table << std::to_string(man.debutYear) + "-04-10" << std::to_string(kSampleYear) + "-09-28"
              << "" << man.id;
        table.End();
    }
    return table.Text();
}

// What a club's players did, added up.
struct ClubTotals {
    MadeBatting bat;
    MadePitching pitch;
    int PO = 0, A = 0, E = 0;
};

ClubTotals TotalsOf(const std::vector<Entry>& entries, std::size_t club) {
    ClubTotals t;
    for (const Entry& entry : entries) {
        if (entry.stint->club != club) continue;
        const MadeBatting& b = entry.stint->bat;
        t.bat.AB += b.AB, t.bat.R += b.R, t.bat.H += b.H, t.bat.Doubles += b.Doubles, t.bat.Triples += b.Triples;
        t.bat.HR += b.HR, t.bat.BB += b.BB, t.bat.SO += b.SO, t.bat.SB += b.SB, t.bat.CS += b.CS, t.bat.HBP += b.HBP;
        t.bat.SF += b.SF;
        const MadePitching& p = entry.stint->pitch;
        t.pitch.R += p.R, t.pitch.ER += p.ER, t.pitch.CG += p.CG, t.pitch.SV += p.SV, t.pitch.IPouts += p.IPouts;
        t.pitch.H += p.H, t.pitch.HR += p.HR, t.pitch.BB += p.BB, t.pitch.SO += p.SO;
        for (const MadeFielding& f : entry.stint->field) t.PO += f.PO, t.A += f.A, t.E += f.E;
    }
    return t;
}

std::string TeamsTable(const MadeLeague& league, const std::vector<Entry>& entries) {
    Table table(
        "yearID,lgID,teamID,franchID,divID,Rank,G,Ghome,W,L,DivWin,WCWin,LgWin,WSWin,R,AB,H,2B,3B,HR,BB,SO,SB,CS,HBP,"
        "SF,RA,ER,"
        "ERA,CG,SHO,SV,IPouts,HA,HRA,BBA,SOA,E,DP,FP,name,park,attendance,BPF,PPF,teamIDBR,teamIDlahman45,teamIDretro");
    for (std::size_t i = 0; i < league.clubs.size(); ++i) {
        const Club& c = league.clubs[i];
        const ClubTotals t = TotalsOf(entries, i);
        const auto yesNo = [](bool won) { return won ? "Y" : "N"; };
        table << kSampleYear << LeagueCode(c) << c.teamID << c.teamID << c.division << c.rank << c.W + c.L
              << c.homeGames << c.W << c.L << yesNo(c.wonDivision) << "" << yesNo(c.wonLeague) << yesNo(c.wonSeries);
        table << std::initializer_list<int>{t.bat.R,  t.bat.AB, t.bat.H,  t.bat.Doubles, t.bat.Triples, t.bat.HR,
                                            t.bat.BB, t.bat.SO, t.bat.SB, t.bat.CS,      t.bat.HBP,     t.bat.SF};
        table << t.pitch.R << t.pitch.ER;
        table.Ratio(27.0 * t.pitch.ER, t.pitch.IPouts, 2);
        table << std::initializer_list<int>{t.pitch.CG, c.shutouts, t.pitch.SV, t.pitch.IPouts, t.pitch.H, t.pitch.HR,
                                            t.pitch.BB, t.pitch.SO, t.E,        c.doublePlays};
        table.Ratio(t.PO + t.A, t.PO + t.A + t.E, 3);
        table << c.city + " " + c.nickname << c.park << c.attendance << 100 << 100 << c.teamID << c.teamID << c.teamID;
        table.End();
    }
    return table.Text();
}

// The whole file or none of it: it is written beside its name and then moved there.
void WriteFile(const std::filesystem::path& path, const std::string& text) {
    const std::filesystem::path part = path.string() + ".part";
    std::ofstream file(part, std::ios::binary | std::ios::trunc);
    file << text;
    file.close();
    std::error_code error;
    if (file) std::filesystem::rename(part, path, error);
    if (file && !error) return;
    std::error_code ignored;
    std::filesystem::remove(part, ignored);
    throw UserError("The sample league's file " + path.string() +
                    " can't be written; check that the folder is yours and the disk isn't full.");
}

}  // namespace

void WriteTables(const std::filesystem::path& folder, const MadeLeague& league) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error)
        throw UserError("The sample league's folder " + folder.string() + " can't be made (" + error.message() +
                        "); choose another place.");
    const std::vector<Entry> entries = EntriesOf(league);
    WriteFile(folder / "Batting.csv", BattingTable(league, entries));
    WriteFile(folder / "Pitching.csv", PitchingTable(league, entries));
    WriteFile(folder / "Fielding.csv", FieldingTable(league, entries));
    WriteFile(folder / "FieldingOF.csv", "playerID,yearID,stint,Glf,Gcf,Grf\n");
    WriteFile(folder / "FieldingOFsplit.csv", OutfieldTable(league, entries));
    WriteFile(folder / "People.csv", PeopleTable(entries));
    WriteFile(folder / "Teams.csv", TeamsTable(league, entries));
}

}  // namespace tarvane::sample
