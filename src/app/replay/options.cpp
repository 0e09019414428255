#include "options.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>

#include "base/error.h"

namespace tarvane::replay {

namespace {

template <class Number>
std::optional<Number> Parse(const std::string& text) {
    Number number{};
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (fault != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return number;
}

}  // namespace

Options::Options(const std::vector<std::string>& words, const std::vector<OptionSpec>& specs, std::size_t positionals,
                 std::string_view positionalNames) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (word.size() < 2 || word.compare(0, 2, "--") != 0) {
            positionals_.push_back(word);
            continue;
        }
        const auto equals = word.find('=');
        const std::string name = word.substr(0, equals);
        const auto spec = std::find_if(specs.begin(), specs.end(), [&](const OptionSpec& s) { return s.name == name; });
        if (spec == specs.end()) throw UserError(fmt::format("unknown option {}; --help lists the options", name));
        if (Has(name) && !spec->many) throw UserError(fmt::format("option {} stands twice", name));
        std::string value;
        if (equals != std::string::npos) {
            if (spec->value.empty()) throw UserError(fmt::format("option {} takes no value", name));
            value = word.substr(equals + 1);
        } else if (!spec->value.empty()) {
            if (++i == words.size()) throw UserError(fmt::format("option {} needs a value: {}", name, spec->value));
            value = words[i];
        }
        given_.push_back({name, value});
    }
    if (positionals_.size() < positionals) throw UserError(fmt::format("missing: {}", positionalNames));
    if (positionals_.size() > positionals)
        throw UserError(fmt::format("one word too many: {}", positionals_[positionals]));
    for (const OptionSpec& spec : specs)
        if (spec.required && !Has(spec.name))
            throw UserError(fmt::format("option {} {} is needed", spec.name, spec.value));
}

bool Options::Has(std::string_view name) const {
    return std::any_of(given_.begin(), given_.end(), [&](const Given& g) { return g.name == name; });
}

std::string Options::Text(std::string_view name, std::string_view ifAbsent) const {
    for (const Given& g : given_)
        if (g.name == name) return g.value;
    return std::string(ifAbsent);
}

std::vector<std::string> Options::Texts(std::string_view name) const {
    std::vector<std::string> values;
    for (const Given& g : given_)
        if (g.name == name) values.push_back(g.value);
    return values;
}

long Options::Number(std::string_view name, long ifAbsent, long low, long high) const {
    if (!Has(name)) return ifAbsent;
    const auto number = Parse<long>(Text(name));
    if (!number || *number < low || *number > high)
        throw UserError(
            fmt::format("option {} takes a whole number from {} to {}, not '{}'", name, low, high, Text(name)));
    return *number;
}

std::optional<double> Options::Real(std::string_view name) const {
    if (!Has(name)) return std::nullopt;
    const auto number = Parse<double>(Text(name));
    if (!number) throw UserError(fmt::format("option {} takes a number such as 0.915, not '{}'", name, Text(name)));
    return number;
}

std::optional<std::uint64_t> Options::Seed() const {
    if (!Has("--seed")) return std::nullopt;
    const auto number = Parse<std::uint64_t>(Text("--seed"));
    if (!number) throw UserError(fmt::format("option --seed takes a whole number, not '{}'", Text("--seed")));
    return number;
}

}  // namespace tarvane::replay
