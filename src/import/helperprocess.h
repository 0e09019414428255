#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane {

// How a helper program ended.
struct HelperEnd {
    enum class Kind { Exited, Killed, TimedOut } kind = Kind::Exited;
    int code = 0;  // exit code, or the number of the signal that killed it
};

// Runs a program with these arguments, without a shell, its standard input empty and its error output thrown away, and
// hands what it writes to its standard output to the sink as it comes. After the limit it is killed. Whatever happens,
// also when the sink throws, the program has ended and been waited for on return. idle is called several times a
// second. Throws UserError if the program can't be started.
HelperEnd RunHelper(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                    std::chrono::milliseconds limit, const std::function<void(std::string_view)>& sink,
                    const std::function<void()>& idle);

// Where a program of ours stands that is installed beside the running one.
std::filesystem::path ProgramBesideThis(std::string_view name);

}  // namespace tarvane
