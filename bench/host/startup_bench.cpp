// The whole process from its start to the editor on screen: spawns the real
// huebase on a scratch folder with a large "col.tmp" and waits for the line
// it prints once the "Color LUT" window has been painted and flushed
// (HUEBASE_PAINT_STAMP). Needs an X server: run it under xvfb-run.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>

#include <csignal>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

// A scratch folder with a "col.tmp" of the given number of ascending
// value,count lines; removed when the object goes.
class ColFolder {
public:
    explicit ColFolder(int rows) {
        std::random_device device;
        path_ = fs::temp_directory_path() / ("huebase-bench-start-" + std::to_string(device()));
        fs::create_directories(path_);
        std::ofstream col(path_ / "col.tmp", std::ios::binary);
        for (int i = 0; i < rows; ++i)
            col << (-1000.0 + i * 0.25) << ',' << (1 + (i * 37) % 211) << "\r\n";
    }
    ~ColFolder() {
        std::error_code ec;
        fs::remove_all(path_, ec);
    }
    std::string path() const { return path_.string(); }

private:
    fs::path path_;
};

// Starts huebase on the folder and answers the seconds from just before the
// spawn to the editor's first paint; the process is killed afterwards.
double secondsToPaintedEditor(const std::string& folder) {
    int out[2];
    if (pipe(out) != 0)
        throw std::runtime_error("pipe failed");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, out[1], STDERR_FILENO);
    posix_spawn_file_actions_addclose(&actions, out[0]);
    std::string program = HUEBASE_EXECUTABLE;
    std::string folderOption = "--folder";
    std::string folderArg = folder;
    char* argv[] = {program.data(), folderOption.data(), folderArg.data(), nullptr};

    const Clock::time_point start = Clock::now();
    pid_t child = 0;
    const int spawned = posix_spawn(&child, program.c_str(), &actions, nullptr, argv, environ);
    posix_spawn_file_actions_destroy(&actions);
    close(out[1]);
    if (spawned != 0) {
        close(out[0]);
        throw std::runtime_error("cannot start " + program);
    }

    std::string text;
    long long paintedNs = -1;
    pollfd reader{out[0], POLLIN, 0};
    while (paintedNs < 0 && poll(&reader, 1, 10000) > 0) {
        char buffer[512];
        const ssize_t got = read(out[0], buffer, sizeof buffer);
        if (got <= 0)
            break;
        text.append(buffer, static_cast<std::size_t>(got));
        const std::size_t at = text.find("painted lut ");
        if (at != std::string::npos && text.find('\n', at) != std::string::npos)
            paintedNs = std::atoll(text.c_str() + at + 12);
    }
    close(out[0]);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    if (paintedNs < 0)
        throw std::runtime_error("the editor was not painted; the program said: " + text);
    const auto startNs =
        std::chrono::duration_cast<std::chrono::nanoseconds>(start.time_since_epoch()).count();
    return static_cast<double>(paintedNs - startNs) * 1e-9;
}

void BM_StartToPaintedEditor(benchmark::State& state) {
    setenv("HUEBASE_PAINT_STAMP", "1", 1);
    const ColFolder folder(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        try {
            state.SetIterationTime(secondsToPaintedEditor(folder.path()));
        } catch (const std::exception& error) {
            state.SkipWithError(error.what());
            break;
        }
    }
}
BENCHMARK(BM_StartToPaintedEditor)
    ->Arg(1403)
    ->Arg(32767)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);

} // namespace
