#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

// Files of scenarios (*.scn, explained in README.md beside them): statements of words, separated by line ends and
// semicolons. # begins a comment; a text in double quotes is one word and may be empty.
namespace tarvane::scenario {

struct Statement {
    std::vector<std::string> words;
    int line = 0;
    bool expected = false;  // part of a line that begins with "expect"
};

struct Scenario {
    std::string file, name;
    int line = 0;
    std::vector<Statement> statements;
};

void PrintTo(const Scenario& scenario, std::ostream* out);

// Throws UserError "<file>:<line>: ..." .
[[noreturn]] void FailAt(const std::string& file, int line, const std::string& what);
std::vector<Scenario> ParseScenarios(std::string_view text, const std::string& file);

// The words of a statement, taken from the left.
class Words {
  public:
    Words(const Scenario& scenario, const Statement& statement) : scenario_(scenario), statement_(statement) {}

    [[noreturn]] void Fail(const std::string& what) const { FailAt(scenario_.file, statement_.line, what); }
    bool More() const { return at_ < statement_.words.size(); }
    std::string Peek() const { return More() ? statement_.words[at_] : std::string(); }
    std::string Next(const std::string& what);
    int Number(const std::string& what, int low, int high);
    // The place of the next word in the list.
    std::size_t OneOf(const std::string& what, const std::vector<std::string_view>& list);
    // Takes the word if it is next.
    bool Take(std::string_view word);
    void Done() const;

  private:
    const Scenario& scenario_;
    const Statement& statement_;
    std::size_t at_ = 0;
};

}  // namespace tarvane::scenario
