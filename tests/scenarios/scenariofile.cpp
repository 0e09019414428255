#include "scenariofile.h"

#include <fmt/format.h>

#include "base/error.h"
#include "base/text.h"

namespace tarvane::scenario {

namespace {

// One line into its statements; a quote left open is a fault.
std::vector<Statement> SplitLine(std::string_view line, const std::string& file, int number) {
    std::vector<Statement> statements(1);
    std::string word;
    bool inWord = false, quoted = false;
    const auto endWord = [&] {
        if (inWord) statements.back().words.push_back(word);
        word.clear();
        inWord = false;
    };
    for (const char c : line) {
        if (c == '"') {
            if (quoted) endWord();
            quoted = !quoted;
            inWord = quoted;
        } else if (quoted) {
            word += c;
        } else if (c == '#') {
            break;
        } else if (c == ' ' || c == ';') {
            endWord();
            if (c == ';') statements.emplace_back();
        } else {
            word += c;
            inWord = true;
        }
    }
    if (quoted) FailAt(file, number, "a quote is never closed");
    endWord();
    std::erase_if(statements, [](const Statement& s) { return s.words.empty(); });
    return statements;
}

}  // namespace

void FailAt(const std::string& file, int line, const std::string& what) {
    throw UserError(fmt::format("{}:{}: {}", file, line, what));
}

std::vector<Scenario> ParseScenarios(std::string_view text, const std::string& file) {
    std::vector<Scenario> scenarios;
    int number = 0;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        ++number;
        if (line.rfind("scenario ", 0) == 0) {
            scenarios.push_back({file, std::string(Trim(line.substr(9))), number, {}});
            continue;
        }
        std::vector<Statement> statements = SplitLine(line, file, number);
        if (statements.empty()) continue;
        if (scenarios.empty()) FailAt(file, number, "a statement before the first scenario");
        std::vector<std::string>& first = statements.front().words;
        const bool expected = first.front() == "expect";
        if (expected) first.erase(first.begin());
        for (Statement& statement : statements) {
            statement.line = number;
            statement.expected = expected;
            if (statement.words.empty()) FailAt(file, number, "expect what?");
            scenarios.back().statements.push_back(std::move(statement));
        }
    }
    return scenarios;
}

std::string Words::Next(const std::string& what) {
    if (!More()) Fail(what + " is missing");
    return statement_.words[at_++];
}

int Words::Number(const std::string& what, int low, int high) {
    const std::string word = Next(what);
    const auto value = ParseInt(word);
    if (!value || *value < low || *value > high)
        Fail(fmt::format("{} is \"{}\"; it must be {} to {}", what, word, low, high));
    return static_cast<int>(*value);
}

std::size_t Words::OneOf(const std::string& what, const std::vector<std::string_view>& list) {
    const std::string word = Next(what);
    for (std::size_t i = 0; i < list.size(); ++i)
        if (list[i] == word) return i;
    Fail(fmt::format("{} is \"{}\"; it must be one of: {}", what, word, fmt::join(list, ", ")));
}

bool Words::Take(std::string_view word) {
    if (Peek() != word || !More()) return false;
    ++at_;
    return true;
}

void Words::Done() const {
    if (More()) Fail("\"" + Peek() + "\" is too much");
}

}  // namespace tarvane::scenario
