// Failure injection with real files and folders: a program folder another
// user may not write or read, a full disk, exchange files replaced while the
// editor is open. Each case checks what the user and the host are told and
// that nothing on disk changes beyond what the program is meant to write.
//
// Permission bits do not bind root, so those cases run the driver
// (huebase_failure_driver) as "nobody" through setpriv when the tests run as
// root. A full disk is a small tmpfs where mounting works, and an LD_PRELOAD
// shim that fails writes elsewhere.
#include "host/host_session.h"
#include "support/flat_colors.h"

#include "support/recording_notifier.h"
#include "support/scratch_folder.h"
#include "support/service_recorder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace huebase {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;
using Snapshot = std::map<std::string, std::string>;

const std::string kCol = "0,1\n100,1\n";
const std::string kLut = "100,7\n0,8\n";
// kLut answered with red for every value.
const std::string kAnswer = "7.00,16711680.00\n8.00,16711680.00\n";
// The driver's two-node ramp as a .lut file.
const std::string kRampFile = "0,2\r\n0.00,0.00,0.00,100.00\r\n100.00,0.00,255.00,100.00\r\n";
const std::string kOldRamp = "0,1\r\n5.00,0.00,255.00,5.00\r\n";

std::string contentsOf(const fs::path& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}

void writeFile(const fs::path& file, const std::string& text, fs::perms mode = fs::perms(0644)) {
    std::ofstream(file, std::ios::binary) << text;
    fs::permissions(file, mode);
}

// Every entry under root with its permissions and, for files, contents
// (large ones by size and hash, to keep failure reports short).
Snapshot snapshot(const fs::path& root) {
    Snapshot entries;
    for (const fs::directory_entry& entry :
         fs::recursive_directory_iterator(root, fs::directory_options::skip_permission_denied)) {
        const fs::file_status status = entry.symlink_status();
        std::ostringstream text;
        text << std::oct << static_cast<unsigned>(status.permissions()) << std::dec << ' ';
        const std::string contents = fs::is_regular_file(status) ? contentsOf(entry.path()) : "";
        if (contents.size() > 256)
            text << contents.size() << " bytes #" << std::hash<std::string>()(contents);
        else if (fs::is_regular_file(status))
            text << contents;
        else
            text << (fs::is_directory(status) ? "<folder>" : "<other>");
        entries[entry.path().lexically_relative(root).string()] = text.str();
    }
    return entries;
}

std::string quoted(const std::string& text) {
    std::string result = "'";
    for (char c : text)
        result += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return result + "'";
}

// Runs the command and answers its output lines, then "crashed" when it did
// not end with code 0.
Lines run(const std::string& command) {
    Lines lines;
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe)
        return {"cannot start"};
    std::array<char, 4096> buffer{};
    while (fgets(buffer.data(), buffer.size(), pipe)) {
        std::string line = buffer.data();
        if (!line.empty() && line.back() == '\n')
            line.pop_back();
        lines.push_back(line);
    }
    const int status = pclose(pipe);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        lines.push_back("crashed");
    return lines;
}

std::string driver(const Lines& arguments) {
    std::string command = quoted(HUEBASE_FAILURE_DRIVER);
    for (const std::string& argument : arguments)
        command += ' ' + quoted(argument);
    return command + " 2>/dev/null";
}

// How to run the driver so that permission bits bind it: as it is when this
// process is not root; as "nobody" through setpriv when it is root and that
// works. Nothing when neither is possible.
std::optional<std::string> unprivileged() {
    if (geteuid() != 0)
        return "";
    const std::string setpriv = "setpriv --reuid=nobody --regid=nogroup --clear-groups ";
    if (getpwnam("nobody") && run(setpriv + driver({})) == Lines{"crashed"})
        return setpriv;
    return std::nullopt;
}

// Gives the tree to the user who runs the driver, so that the modes set by
// a case are what decides.
void handOver(const fs::path& root) {
    const passwd* nobody = getpwnam("nobody");
    if (geteuid() != 0 || !nobody)
        return;
    const auto give = [&](const fs::path& p) {
        (void)lchown(p.c_str(), nobody->pw_uid, nobody->pw_gid);
    };
    give(root);
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root))
        give(entry.path());
}

// A program folder inside a scratch folder, with the exchange files.
class ProgramFolder {
public:
    ProgramFolder() {
        fs::create_directory(path);
        writeFile(path / "col.tmp", kCol);
        writeFile(path / "lut.tmp", kLut);
    }
    ~ProgramFolder() {
        // Modes set by a case must not keep the scratch folder from going.
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(
                 scratch.path(), fs::directory_options::skip_permission_denied))
            if (entry.is_directory())
                fs::permissions(entry.path(), fs::perms::owner_all, fs::perm_options::add);
    }
    std::string text() const { return path.string(); }

    testing::ScratchFolder scratch;
    const fs::path path = scratch.path() / "program";
};

struct DiskCase {
    const char* name;
    std::function<void(const fs::path& program)> prepare;
    Lines arguments; // "@" stands for the program folder
    Lines shown;     // "@" stands for the program folder
    Snapshot changes;
};

Lines withFolder(Lines lines, const std::string& folder) {
    for (std::string& line : lines)
        for (std::size_t at; (at = line.find('@')) != std::string::npos;)
            line.replace(at, 1, folder);
    return lines;
}

// Runs a case with the driver behind prefix; the snapshot before, updated by
// the case's changes, must be the snapshot after.
void runCase(const DiskCase& c, const std::string& prefix) {
    SCOPED_TRACE(c.name);
    ProgramFolder program;
    c.prepare(program.path);
    handOver(program.path);
    Snapshot expected = snapshot(program.path);
    for (const auto& [entry, state] : c.changes)
        expected[entry] = state;
    EXPECT_EQ(run(prefix + driver(withFolder(c.arguments, program.text()))),
              withFolder(c.shown, program.text()));
    EXPECT_EQ(snapshot(program.path), expected);
}

void mode(const fs::path& entry, unsigned bits) {
    fs::permissions(entry, fs::perms(bits));
}

void library(const fs::path& program, const std::string& lut, unsigned lutMode,
             unsigned folderMode) {
    fs::create_directory(program / "myLuts");
    writeFile(program / "myLuts" / "a.lut", lut, fs::perms(lutMode));
    mode(program / "myLuts", folderMode);
}

TEST(FailureInjection, FoldersAndFilesTheUserMayNotWriteOrRead) {
    const std::optional<std::string> prefix = unprivileged();
    if (!prefix)
        GTEST_SKIP() << "running as root, and setpriv cannot run the driver as nobody: "
                        "permission bits would not bind";
    const Lines refused = {"message: Overwrite @/myLuts/a.lut ?",
                           "message: Can't access: @/myLuts/a.lut", "result: Failed"};
    const DiskCase cases[] = {
        {"read-only program folder, writable lut.tmp: rewritten in place",
         [](const fs::path& p) { mode(p, 0555); },
         {"answer", "@"},
         {"status: 0G", "exit: 0"},
         {{"lut.tmp", "644 " + kAnswer}}},
        {"read-only program folder and lut.tmp",
         [](const fs::path& p) {
             mode(p / "lut.tmp", 0444);
             mode(p, 0555);
         },
         {"answer", "@"},
         {"status: -1G", "exit: 0"},
         {}},
        {"unreadable lut.tmp",
         [](const fs::path& p) { mode(p / "lut.tmp", 0200); },
         {"answer", "@"},
         {"message: Can't find export values table", "status: -1G", "exit: 0"},
         {}},
        {"unreadable col.tmp",
         [](const fs::path& p) { mode(p / "col.tmp", 0200); },
         {"answer", "@"},
         {"message: Error: 70. Permission denied", "exit: 1"},
         {}},
        {"save over a read-only .lut",
         [](const fs::path& p) { library(p, kOldRamp, 0444, 0755); },
         {"save", "@/myLuts/a.lut"},
         refused,
         {}},
        {"save over a writable .lut in a read-only library",
         [](const fs::path& p) { library(p, kOldRamp, 0644, 0555); },
         {"save", "@/myLuts/a.lut"},
         refused,
         {}},
        {"save over a writable .lut",
         [](const fs::path& p) { library(p, kOldRamp, 0640, 0755); },
         {"save", "@/myLuts/a.lut"},
         {"message: Overwrite @/myLuts/a.lut ?", "result: Saved"},
         {{"myLuts/a.lut", "640 " + kRampFile}}},
        {"unreadable .lut: listed with its read error",
         [](const fs::path& p) { library(p, kOldRamp, 0200, 0755); },
         {"library", "@", "x.lut"},
         {"rows: 1", "note: Error: 70. Permission denied", "result: Saved"},
         {{"myLuts/x.lut", "644 " + kRampFile}}},
        {"unreadable library",
         [](const fs::path& p) { library(p, kOldRamp, 0644, 0); },
         {"library", "@", "x.lut"},
         {"rows: 0", "message: Can't access: @/myLuts/x.lut", "result: Failed"},
         {}},
        {"library that is a file",
         [](const fs::path& p) { writeFile(p / "myLuts", "not a folder"); },
         {"library", "@", "x.lut"},
         {"rows: 0", "message: Can't access: @/myLuts/x.lut", "result: Failed"},
         {}},
        {"missing library: created",
         [](const fs::path&) {},
         {"library", "@", "x.lut"},
         {"rows: 0", "result: Saved"},
         {{"myLuts", "755 <folder>"}, {"myLuts/x.lut", "644 " + kRampFile}}},
    };
    const mode_t previous = umask(022);
    for (const DiskCase& c : cases)
        runCase(c, *prefix);
    umask(previous);
}

// A full disk: a 256 KiB tmpfs filled up, or every write failing through the
// shim. Either skips with its reason when it cannot be had.
enum class FullDisk { Tmpfs, Shim };

class FullDiskTest : public ::testing::TestWithParam<FullDisk> {};

// Mounts a small tmpfs over the folder for the object's lifetime.
class Tmpfs {
public:
    explicit Tmpfs(fs::path folder) : folder_(std::move(folder)) {
        mounted_ = geteuid() == 0 && run("mount -t tmpfs -o size=256k huebase-full " +
                                         quoted(folder_.string()) + " 2>/dev/null") == Lines{};
    }
    ~Tmpfs() {
        if (mounted_)
            run("umount " + quoted(folder_.string()));
    }
    bool mounted() const { return mounted_; }

private:
    fs::path folder_;
    bool mounted_ = false;
};

void fillUp(const fs::path& folder) {
    std::ofstream filler(folder / "filler", std::ios::binary);
    const std::string block(4096, 'x');
    while (filler.write(block.data(), block.size()).flush())
        ;
}

TEST_P(FullDiskTest, TheAnswerIsToldAsFailedAndASaveKeepsTheOldRamp) {
    std::string lut, answer;
    for (int i = 0; i < 400; ++i) {
        lut += kLut;
        answer += kAnswer;
    }
    ProgramFolder program;
    std::optional<Tmpfs> tmpfs;
    std::string prefix;
    if (GetParam() == FullDisk::Tmpfs) {
        tmpfs.emplace(program.path);
        if (!tmpfs->mounted())
            GTEST_SKIP() << "a tmpfs cannot be mounted here (not root, or no mount permission)";
        writeFile(program.path / "col.tmp", kCol);
    } else {
#if defined(__SANITIZE_ADDRESS__)
        GTEST_SKIP() << "AddressSanitizer does not load the LD_PRELOAD shim";
#endif
        prefix = "LD_PRELOAD=" + quoted(HUEBASE_ENOSPC_SHIM) + ' ';
    }
    // Twice the freed blocks are needed to rewrite lut.tmp.
    writeFile(program.path / "lut.tmp", lut);
    library(program.path, kOldRamp, 0644, 0755);
    if (tmpfs)
        fillUp(program.path);
    const Snapshot before = snapshot(program.path);

    EXPECT_EQ(run(prefix + driver({"answer", program.text()})), (Lines{"status: -1G", "exit: 0"}));
    Snapshot after = snapshot(program.path);
    const std::string written = contentsOf(program.path / "lut.tmp");
    EXPECT_LT(written.size(), answer.size());
    EXPECT_TRUE(answer.starts_with(written)) << "a part of the answer, nothing else";
    after["lut.tmp"] = before.at("lut.tmp");
    EXPECT_EQ(after, before);

    const std::string target = program.text() + "/myLuts/a.lut";
    EXPECT_EQ(run(prefix + driver({"save", target})),
              (Lines{"message: Overwrite " + target + " ?", "message: Can't access: " + target,
                     "result: Failed"}));
    after["lut.tmp"] = snapshot(program.path)["lut.tmp"];
    EXPECT_EQ(snapshot(program.path), after);
}

INSTANTIATE_TEST_SUITE_P(Disks, FullDiskTest, ::testing::Values(FullDisk::Tmpfs, FullDisk::Shim),
                         [](const auto& info) {
                             return info.param == FullDisk::Tmpfs ? "Tmpfs" : "Shim";
                         });

using testing::RecordingNotifier;

TEST(FailureInjection, LutTmpGoneOrNoFileAtOkEndsSilentlyWithoutWaiting) {
    const std::pair<const char*, std::function<void(const fs::path&)>> cases[] = {
        {"removed", [](const fs::path&) {}},
        {"a folder", [](const fs::path& lut) { fs::create_directory(lut); }},
        {"a FIFO", [](const fs::path& lut) { ASSERT_EQ(mkfifo(lut.c_str(), 0644), 0); }},
    };
    for (const auto& [name, replace] : cases) {
        SCOPED_TRACE(name);
        ProgramFolder program;
        testing::ServiceRecorder services;
        RecordingNotifier notifier;
        HostSession session(program.text(), notifier);
        ASSERT_TRUE(session.start());
        const fs::path lut = program.path / "lut.tmp";
        fs::remove(lut);
        replace(lut);
        const Snapshot before = snapshot(program.path);

        // Should the session wait on the FIFO, the watchdog opens its other
        // end after a while and the test fails instead of hanging.
        std::atomic<bool> answered = false;
        bool waited = false;
        std::thread watchdog([&] {
            for (int i = 0; i < 100 && !answered; ++i)
                std::this_thread::sleep_for(std::chrono::milliseconds(50));
            if (!answered && fs::is_fifo(lut)) {
                const int fd = open(lut.c_str(), O_RDWR | O_NONBLOCK);
                waited = fd >= 0;
                std::this_thread::sleep_for(std::chrono::milliseconds(200));
                close(fd);
            }
        });
        session.answerDefined(huebase::testing::oneColor(0x0000FF));
        answered = true;
        watchdog.join();
        EXPECT_FALSE(waited) << "the answer waited on the FIFO";
        EXPECT_TRUE(services.messages().empty());
        EXPECT_TRUE(notifier.statuses.empty());
        EXPECT_EQ(services.exitCodes(), std::vector<int>{0});
        EXPECT_EQ(snapshot(program.path), before);
    }
}

TEST(FailureInjection, AColTmpOf32768LinesIsAnOverflowThatChangesNothing) {
    ProgramFolder program;
    std::string col;
    for (int i = 0; i < 32768; ++i)
        col += std::to_string(i) + ",1\n";
    writeFile(program.path / "col.tmp", col);
    const Snapshot before = snapshot(program.path);
    testing::ServiceRecorder services;
    RecordingNotifier notifier;
    HostSession session(program.text(), notifier);
    EXPECT_FALSE(session.start());
    ASSERT_EQ(services.messages().size(), 1u);
    EXPECT_EQ(services.messages()[0].text, "Error: 6. Overflow");
    EXPECT_EQ(services.exitCodes(), std::vector<int>{HostSession::kStartFailedExitCode});
    EXPECT_TRUE(notifier.statuses.empty());
    EXPECT_EQ(snapshot(program.path), before);
}

} // namespace
} // namespace huebase
