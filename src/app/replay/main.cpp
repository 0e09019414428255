// tarvane-replay: the engine without a screen. Exit codes: 0 done, 1 it could not be done (one line says why), 2 the
// command line was wrong.

#include <fmt/format.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "base/error.h"
#include "commands.h"

namespace tarvane::replay {

namespace {

constexpr int kFailed = 1;
constexpr int kUsage = 2;

void PrintHelp() {
    fmt::print(
        "Tarvane PC Baseball, without a screen.\n\n"
        "usage: tarvane-replay [--data-dir DIR] COMMAND [options]\n\n"
        "DIR is the folder that holds all seasons; it is made on first use. Without it: 'Tarvane Baseball Files' in\n"
        "your documents folder.\n\ncommands:\n");
    for (const Command& command : Commands()) fmt::print("  {:<16} {}\n", command.name, command.summary);
    fmt::print("\n'tarvane-replay COMMAND --help' tells a command's options.\n");
}

void PrintHelp(const Command& command) {
    fmt::print("usage: tarvane-replay {}{}{}{}\n\n{}.\n", command.name, command.positionals > 0 ? " " : "",
               command.positionalNames, command.options.empty() ? "" : " [options]", command.summary);
    if (!command.details.empty()) fmt::print("\n{}\n", command.details);
    if (!command.options.empty()) fmt::print("\noptions:\n");
    for (const OptionSpec& option : command.options) {
        const std::string left =
            option.value.empty() ? std::string(option.name) : fmt::format("{} {}", option.name, option.value);
        fmt::print("  {:<24} {}{}\n", left, option.help, option.required ? " (needed)" : "");
    }
}

int Run(std::vector<std::string> words, Context context) {
    while (!words.empty() && words.front().rfind("--", 0) == 0) {
        const std::string word = words.front();
        words.erase(words.begin());
        if (word == "--help") return PrintHelp(), 0;
        if (word.rfind("--data-dir=", 0) == 0) {
            context.dataDir = word.substr(11);
        } else if (word == "--data-dir" && !words.empty()) {
            context.dataDir = words.front();
            words.erase(words.begin());
        } else {
            throw UserError(word == "--data-dir" ? "option --data-dir needs a folder" : "unknown option " + word);
        }
    }
    if (words.empty()) return PrintHelp(), kUsage;
    const auto& commands = Commands();
    const auto command =
        std::find_if(commands.begin(), commands.end(), [&](const Command& c) { return c.name == words.front(); });
    if (command == commands.end())
        throw UserError(fmt::format("unknown command '{}'; tarvane-replay --help lists the commands", words.front()));
    words.erase(words.begin());
    if (std::find(words.begin(), words.end(), "--help") != words.end()) return PrintHelp(*command), 0;
    const Options options(words, command->options, command->positionals, command->positionalNames);
    options.Seed();  // a seed that is no number is a wrong command line, whatever the command then finds
    try {
        return command->run(context, options);
    } catch (const UserError& error) {
        fmt::print(stderr, "tarvane-replay {}: {}\n", command->name, error.what());
        return kFailed;
    }
}

}  // namespace

int Main(int argc, char** argv) {
    Context context;
    try {
        return Run(std::vector<std::string>(argv + std::min(argc, 1), argv + argc), context);
    } catch (const UserError& error) {
        fmt::print(stderr, "tarvane-replay: {}\n", error.what());
        return kUsage;
    } catch (const std::exception& error) {
        fmt::print(stderr, "tarvane-replay: {}\n", error.what());
        return kFailed;
    }
}

}  // namespace tarvane::replay

int main(int argc, char** argv) {
    return tarvane::replay::Main(argc, argv);
}
