#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "core/database.h"
#include "season/schedulefile.h"

namespace tarvane {

// The players of a season as game logs are matched with them.
class LoggedPlayers {
  public:
    explicit LoggedPlayers(Database& season);

    struct Found {
        std::int32_t playerID = 0;  // 0: nobody of the team answers to that man
        bool starter = false;       // of a pitcher: has a row as starting pitcher
    };
    // By name, letters and digits alone counting; where the name finds nobody or two men, by the stem of the man's key
    // (four letters of the last name and the first initial). A pitcher with rows as starter and as reliever is found as
    // starter.
    Found Batter(const std::string& teamID, const LoggedMan& man) const { return Find(batters_, teamID, man); }
    Found Pitcher(const std::string& teamID, const LoggedMan& man) const { return Find(pitchers_, teamID, man); }

  private:
    struct Row {
        std::int32_t playerID = 0;
        std::string key;   // LahmanPlayerID
        std::string name;  // letters and digits
        bool starter = false;
    };
    using Teams = std::map<std::string, std::vector<Row>>;
    static Teams Load(Database& season, std::string_view table, std::string_view starterCondition);
    static Found Find(const Teams& teams, const std::string& teamID, const LoggedMan& man);

    Teams batters_, pitchers_;
};

}  // namespace tarvane
