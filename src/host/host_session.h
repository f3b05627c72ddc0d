#pragma once

#include "core/clut_table.h"
#include "core/color_value.h"
#include "host/host_notifier.h"
#include "host/value_index.h"
#include "host/values_table.h"
#include "util/vb_error.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace huebase {

// The session with the host behind the startup window: reads the values the
// host exported to "col.tmp", and once the user has defined the colour table,
// colours every value, rewrites "lut.tmp" with one colour per key and tells
// the host. The window only wires it to its LUT control.
//
// Every way out goes through endProgram; as that returns under tests, each
// operation returns right after calling it.
class HostSession {
public:
    // Exit code of the program when "col.tmp" cannot be read at start.
    static constexpr int kStartFailedExitCode = 1;

    // folder: the program's folder, a UTF-8 path; the notifier is not owned.
    HostSession(std::string folder, HostNotifier& notifier);

    // folder + "\col.tmp" and folder + "\lut.tmp".
    std::string colPath() const;
    std::string lutPath() const;

    // Start: without "col.tmp" the program ends at once, silently, with exit
    // code 0. Otherwise the input values table is sized to the file's row
    // count (exchangeRowCount: blank lines at the end are no rows) and filled; when that fails
    // (more than 32,767 lines, records that do not fit the rows, an unreadable file) the message
    // "Error: N. description" is shown and the program ends with
    // kStartFailedExitCode, the host not told. Answers the table to hand to
    // the LUT control (SetValues(table, -1, 2)), or null once ended. The file
    // is read once.
    const ValuesTable* start();

    // The answer to the control's LUTDefined: colours the input rows with the
    // control's colour table (its ClutInterpolate), rewrites "lut.tmp", tells
    // the host and ends the program.
    // "lut.tmp" is deleted and written again from its start (truncated when
    // it cannot be deleted); an empty table leaves an empty file.
    // - "lut.tmp" missing or no regular file: ends silently, the host not told;
    // - GetOutPutFile false, which includes a file that cannot be read:
    //   "Can't find export values table", then -1G;
    // - the new file cannot be written: -1G;
    // - any run-time error: "Error: N. description", then -1G;
    // - otherwise 0G.
    void answerDefined(const ClutTable& colors);

    // Fill the input (output) values table from the file, row 1 onward, as
    // readExchangeTable; the table keeps the size it was given. True when the
    // end of the file was reached; false on a run-time error.
    bool GetOrderedFile(const std::string& path);
    bool GetOutPutFile(const std::string& path);

    // Column 2 of the last input row whose column 1 equals value, converted
    // to a 32-bit integer (the host colour once the rows are coloured); 0
    // when no row does. Served from an index built once per filling of the
    // input table.
    std::int32_t FindColorInInputArrayFromValue(const Variant& value);

    // The floor of value * 100 / total as a 16-bit integer (1 of 3 gives 33,
    // -1 of 3 gives -34). A zero total is error 11, or 6 for 0 of 0; a result
    // beyond 16 bits is error 6.
    static std::int16_t ScalePercent(double value, double total);

    // Sizes the input values table (rows from 1, all Empty), as start does
    // before filling it.
    void sizeInputArray(int rows);
    const ValuesTable& InputArray() const noexcept { return input_; }
    const ValuesTable& OutputArray() const noexcept { return output_; }

private:
    void answerSteps(const ClutTable& colors);
    void colorInputRows(const ClutTable& colors);
    // Reads "lut.tmp" once into the output table, sized to its rows. False
    // when it cannot be read or its records do not fit; too many rows is
    // error 6.
    bool readExportTable(const std::string& path);
    // The rewritten "lut.tmp": one line per output row, in row order.
    std::string exportText();
    bool fill(const std::string& path, ValuesTable& table);
    // The file's text, or nothing with the read error kept.
    std::optional<std::string> readText(const std::string& path);
    bool fillFromText(std::string text, ValuesTable& table);
    // Tells the host; when it cannot be reached, says so. Does not end the
    // program: its callers do.
    void NotifyHost(std::int32_t code);

    std::string folder_;
    HostNotifier& notifier_;
    ValuesTable input_;
    ValuesTable output_;
    std::optional<ValueIndex> index_;
    // The host colour of each input row once coloured, as the answer reads them.
    std::vector<std::int32_t> hostColors_;
    std::optional<VbError> readError_;
};

} // namespace huebase
