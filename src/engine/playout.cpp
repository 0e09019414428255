#include "engine/game.h"

namespace tarvane {

namespace {

// More changes than this before one pitch are a manager who can't make up his mind: the pitch is thrown.
constexpr int kMaxInputsBeforePitch = 24;

struct Table {
    const GameData& data;
    GameState& state;
    PerSide<Manager*> manager;
    GameListener* listener;

    bool AtPitch() const { return state.awaited.kind == Await::Roll && state.sheet == SheetCode::P; }

    bool TakeOrder(Side side) {
        Input input;
        if (!manager[side]->BeforePitch(data, state, side, input)) return false;
        return Advance(data, state, input, listener) == Reject::None;
    }
};

// The field looks first, then the side at bat. After every order taken the round starts again with the field, and it
// ends when the pitch isn't next any more.
void AskBeforePitch(Table& table) {
    for (int orders = 0; orders < kMaxInputsBeforePitch && table.AtPitch(); ++orders) {
        if (table.TakeOrder(table.state.FieldingSide())) continue;
        if (!table.TakeOrder(table.state.BattingSide)) return;
    }
}

void Roll(Table& table, Random& random) {
    RollInput roll;
    roll.chartRoll = static_cast<std::uint8_t>(ChartRollFromRaw(random.RandomRoll216()));
    roll.values = DrawPlayValues(random);
    Advance(table.data, table.state, roll, table.listener);
}

void Decide(Table& table) {
    const Side side = table.state.awaited.side;
    const bool yes = table.manager[side]->Decide(table.data, table.state, side);
    Advance(table.data, table.state, DecisionInput{side, yes}, table.listener);
}

// A manager who has nobody, or names men who may not enter, gets the first line-up that will do.
bool ChangeForced(Table& table) {
    const Side side = table.state.awaited.side;
    LineupInput lineup;
    if (table.manager[side]->ForcedLineup(table.data, table.state, side, lineup) &&
        Advance(table.data, table.state, lineup, table.listener) == Reject::None)
        return true;
    Manager plain;
    return plain.ForcedLineup(table.data, table.state, side, lineup) &&
           Advance(table.data, table.state, lineup, table.listener) == Reject::None;
}

}  // namespace

bool Manager::Decide(const GameData&, const GameState&, Side) {
    return false;
}

bool Manager::BeforePitch(const GameData&, const GameState&, Side, Input&) {
    return false;
}

void PlayOut(const GameData& data, GameState& state, Random& random, Manager& visitor, Manager& home,
             GameListener* listener) {
    Table table{data, state, {{&visitor, &home}}, listener};
    while (!state.GameOverFlag) {
        switch (state.awaited.kind) {
            case Await::Roll:
                AskBeforePitch(table);
                if (state.awaited.kind == Await::Roll) Roll(table, random);
                break;
            case Await::Decision: Decide(table); break;
            case Await::LineupChange:
                if (!ChangeForced(table)) return;
                break;
            case Await::GameOver: return;
        }
    }
}

}  // namespace tarvane
