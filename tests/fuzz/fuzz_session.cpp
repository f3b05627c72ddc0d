// A whole exchange session: the input is the bytes of "col.tmp", then a NUL
// byte and the bytes of "lut.tmp" (no NUL: no "lut.tmp"). The session starts
// on them in a scratch folder of this process, colours with a fixed two-node
// ramp, rewrites "lut.tmp" and tells a recording notifier.
//
// Invariants:
// - a start that fails shows one message and ends with the start-failure
//   exit code, the host not told;
// - the answer ends the program once with 0; without "lut.tmp" the host is
//   told only of an error in colouring the values (which comes first),
//   otherwise it is told once, "0G" or "-1G";
// - "-1G" comes with one message (every line is writable here), "0G" with
//   none;
// - after "0G", "lut.tmp" holds one line per row of the export table (plus
//   the line breaks of text keys written as they stand), each ending in a
//   host colour in "Fixed" form within 0..16777215.
#include "fuzz_support.h"

#include "core/clut_table.h"
#include "host/export_format.h"
#include "host/host_notifier.h"
#include "host/host_session.h"
#include "util/misc_files.h"

#include "support/recording_notifier.h"
#include "support/scratch_folder.h"
#include "support/service_recorder.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

using namespace huebase;

using testing::RecordingNotifier;

const testing::ScratchFolder& folder() {
    static const testing::ScratchFolder scratch;
    return scratch;
}

// Red at 0 to blue at 100, linear; green above 100.
const ClutTable& ramp() {
    static const ClutTable table = [] {
        ClutTable t;
        t.setTable({{0.0f, MethodLin, 0x0000FF, 100.0f}, {100.0f, MethodLin, 0xFF0000, 100.0f}},
                   0x00FF00);
        return t;
    }();
    return table;
}

std::string contents(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// A host colour as the answer writes it: digits, the point, "00".
bool isFixedHostColor(std::string_view text) {
    if (text.size() < 4 || text.substr(text.size() - 3) != ".00")
        return false;
    const std::string_view digits = text.substr(0, text.size() - 3);
    if (digits.size() > 8 ||
        !std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return false;
    return std::stol(std::string(digits)) <= 0xFFFFFF;
}

void checkAnswer(const HostSession& session, const std::string& written) {
    const ValuesTable& output = session.OutputArray();
    std::size_t keyBreaks = 0;
    for (const ValuesTable::Row& row : output.data()) {
        const std::string key = fixedField(row[1], '.');
        keyBreaks += static_cast<std::size_t>(std::count(key.begin(), key.end(), '\n'));
    }
    const auto lines = static_cast<std::size_t>(std::count(written.begin(), written.end(), '\n'));
    FUZZ_CHECK(lines == static_cast<std::size_t>(output.rows()) + keyBreaks);
    FUZZ_CHECK(written.empty() || written.back() == '\n');
    if (keyBreaks != 0)
        return;
    std::size_t start = 0;
    for (std::size_t end = written.find('\n'); end != std::string::npos;
         start = end + 1, end = written.find('\n', start)) {
        const std::string_view line(written.data() + start, end - start);
        const std::size_t comma = line.rfind(',');
        FUZZ_CHECK(comma != std::string_view::npos);
        FUZZ_CHECK(isFixedHostColor(line.substr(comma + 1)));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fuzz::Split input = fuzz::splitAt(fuzz::bytes(data, size), '\0');
    const std::filesystem::path lutPath = folder().path() / "lut.tmp";
    std::filesystem::remove(lutPath);
    folder().write("col.tmp", input.first);
    if (input.separated)
        folder().write("lut.tmp", input.second);

    testing::ServiceRecorder services;
    RecordingNotifier notifier;
    HostSession session(folder().file(""), notifier);
    const ValuesTable* table = session.start();
    if (!table) {
        FUZZ_CHECK(services.exitCodes() == std::vector<int>{HostSession::kStartFailedExitCode});
        FUZZ_CHECK(services.messages().size() == 1);
        FUZZ_CHECK(notifier.statuses.empty());
        return 0;
    }
    FUZZ_CHECK(!services.ended() && services.messages().empty());
    FUZZ_CHECK(table->rows() <= 32767);

    session.answerDefined(ramp());
    FUZZ_CHECK(services.exitCodes() == std::vector<int>{0});
    if (!input.separated) {
        FUZZ_CHECK(!std::filesystem::exists(lutPath));
        // The values are coloured before "lut.tmp" is looked for, so a value
        // that cannot be coloured is still an error told to the host.
        if (notifier.statuses.empty()) {
            FUZZ_CHECK(services.messages().empty());
            return 0;
        }
    }
    FUZZ_CHECK(notifier.statuses.size() == 1);
    const std::string& status = notifier.statuses.front();
    FUZZ_CHECK(status == "0G" || status == "-1G");
    FUZZ_CHECK(services.messages().size() == (status == "0G" ? 0u : 1u));
    FUZZ_CHECK(input.separated || status == "-1G");
    if (status == "0G")
        checkAnswer(session, std::filesystem::exists(lutPath) ? contents(lutPath) : std::string());
    return 0;
}
