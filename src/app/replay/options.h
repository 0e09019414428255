#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane::replay {

// One option of a command as its help shows it. An option without a value name is a switch.
struct OptionSpec {
    std::string_view name;   // "--seed"
    std::string_view value;  // "N"; empty for a switch
    std::string_view help;
    bool required = false;
    bool many = false;  // may stand more than once
};

// What stood on the command line, checked against the specs: positional words and options with their values. Every
// getter's UserError names the option and what it takes.
class Options {
  public:
    // Throws UserError for an unknown option, a missing value, a required option left out, or one given twice.
    Options(const std::vector<std::string>& words, const std::vector<OptionSpec>& specs, std::size_t positionals,
            std::string_view positionalNames);

    const std::string& Positional(std::size_t index) const { return positionals_[index]; }
    bool Has(std::string_view name) const;
    std::string Text(std::string_view name, std::string_view ifAbsent = {}) const;
    std::vector<std::string> Texts(std::string_view name) const;
    // A whole number from low to high.
    long Number(std::string_view name, long ifAbsent, long low, long high) const;
    std::optional<double> Real(std::string_view name) const;
    std::optional<std::uint64_t> Seed() const;  // --seed, any unsigned 64-bit number

  private:
    struct Given {
        std::string name, value;
    };
    std::vector<std::string> positionals_;
    std::vector<Given> given_;
};

}  // namespace tarvane::replay
