#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace tarvane {

struct Outcome {
    int code = -1;
    std::string out, err;
};

// Runs the program itself, on data folders that are gone when the process ends.
class ReplayTest : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        folder_ = std::filesystem::temp_directory_path() / ("tarvane-replay-test-" + std::to_string(getpid()));
        std::filesystem::create_directories(folder_);
    }
    static void TearDownTestSuite() { std::filesystem::remove_all(folder_); }

    static std::string ReadAll(const std::filesystem::path& file) {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    // Words are quoted for the shell by the caller where they need it.
    static Outcome Run(const std::string& words, const std::string& data = "data") {
        const std::string err = (folder_ / "err").string();
        const std::string out = (folder_ / "out").string();
        const std::string command = std::string(TARVANE_REPLAY) + " --data-dir " + (folder_ / data).string() + " " +
                                    words + " >" + out + " 2>" + err + " </dev/null";
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadAll(out), ReadAll(err)};
    }
    static std::string Sample() {
        const auto sample = folder_ / "sample";
        if (!std::filesystem::exists(sample)) {
            EXPECT_EQ(Run("sample-league " + sample.string() + " --seed 3").code, 0);
        }
        return sample.string();
    }
    static inline std::filesystem::path folder_;
};

}  // namespace tarvane
