#include "import/helperprocess.h"

#include <fcntl.h>
#include <fmt/core.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>

#include "base/error.h"

extern char** environ;

namespace tarvane {

namespace {

using Clock = std::chrono::steady_clock;  // for the time limit alone

[[noreturn]] void CannotStart(const std::filesystem::path& program, int error) {
    throw UserError(fmt::format("The program {} can't be started ({}). Install the game again.", program.string(),
                                std::strerror(error)));
}

class HelperProcess {
  public:
    HelperProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments) {
        std::array<int, 2> pipe{};
        if (pipe2(pipe.data(), O_CLOEXEC) != 0) CannotStart(program, errno);
        output_ = pipe[0];
        const int error = Spawn(program, arguments, pipe[1]);
        close(pipe[1]);
        if (error == 0) return;
        close(output_);
        CannotStart(program, error);
    }

    HelperProcess(const HelperProcess&) = delete;
    HelperProcess& operator=(const HelperProcess&) = delete;

    ~HelperProcess() {
        close(output_);
        if (!waited_) Kill();
    }

    // Waits at most so long for output. The size read; 0 at the end of the output, -1 if none came in time.
    long Read(std::array<char, 65536>& buffer, std::chrono::milliseconds wait) const {
        pollfd poller{output_, POLLIN, 0};
        if (poll(&poller, 1, static_cast<int>(wait.count())) <= 0) return -1;
        const ssize_t size = read(output_, buffer.data(), buffer.size());
        return size < 0 && (errno == EINTR || errno == EAGAIN) ? -1 : std::max<ssize_t>(size, 0);
    }

    // True once it has ended.
    bool Ended(HelperEnd& end) {
        int status = 0;
        if (waitpid(process_, &status, WNOHANG) != process_) return false;
        waited_ = true;
        end.kind = WIFSIGNALED(status) ? HelperEnd::Kind::Killed : HelperEnd::Kind::Exited;
        end.code = WIFSIGNALED(status) ? WTERMSIG(status) : WEXITSTATUS(status);
        return true;
    }

    void Kill() {
        kill(process_, SIGKILL);
        while (waitpid(process_, nullptr, 0) < 0 && errno == EINTR) {
        }
        waited_ = true;
    }

  private:
    int Spawn(const std::filesystem::path& program, const std::vector<std::string>& arguments, int output) {
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        std::vector<std::string> words{program.string()};
        words.insert(words.end(), arguments.begin(), arguments.end());
        std::vector<char*> argv;
        for (std::string& word : words) argv.push_back(word.data());
        argv.push_back(nullptr);
        const int error = posix_spawn(&process_, program.c_str(), &actions, nullptr, argv.data(), environ);
        posix_spawn_file_actions_destroy(&actions);
        return error;
    }

    pid_t process_ = -1;
    int output_ = -1;
    bool waited_ = false;
};

}  // namespace

HelperEnd RunHelper(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                    std::chrono::milliseconds limit, const std::function<void(std::string_view)>& sink,
                    const std::function<void()>& idle) {
    constexpr std::chrono::milliseconds kBeat{100};
    const Clock::time_point deadline = Clock::now() + limit;
    HelperProcess helper(program, arguments);
    std::array<char, 65536> buffer;
    bool open = true;
    for (;;) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
        if (left.count() <= 0) {
            helper.Kill();
            return {HelperEnd::Kind::TimedOut, 0};
        }
        HelperEnd end;
        if (!open && helper.Ended(end)) return end;
        if (!open) {  // between the end of the output and the end of the process lies no more than a moment
            poll(nullptr, 0, 1);
            continue;
        }
        const long size = helper.Read(buffer, std::min(kBeat, left));
        if (size > 0) sink(std::string_view(buffer.data(), static_cast<std::size_t>(size)));
        if (size == 0) open = false;
        idle();
    }
}

std::filesystem::path ProgramBesideThis(std::string_view name) {
    std::error_code error;
    const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
    return (error ? std::filesystem::path(".") : self.parent_path()) / name;
}

}  // namespace tarvane
