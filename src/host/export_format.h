#pragma once

#include "core/color_value.h"
#include "util/variant.h"
#include "util/vb_format.h"

#include <cstdint>
#include <string>

namespace huebase {

// The host's side of the exchange: its colour order and the lines of the
// rewritten "lut.tmp".

// The host colour of a ColorValue: red * 65536 + green * 256 + blue, red in
// the high byte. Computed in checked 32-bit arithmetic; a colour with bit 24
// set fails in GreenOf with error 6 (Overflow).
std::int32_t hostColor(ColorValue color);

// A field formatted "Fixed" as the classic Format does it with a variant: a
// number, or a text that reads as one, gives formatFixed; any other text is
// returned as it stands; Empty gives "".
std::string fixedField(const Variant& field, char decimalSeparator = localeDecimalSeparator());

// One line of the rewritten "lut.tmp" without its line end: the key "Fixed",
// a comma, the host colour "Fixed" (no quotes, no spaces).
std::string exportLine(const Variant& key, std::int32_t hostColorValue,
                       char decimalSeparator = localeDecimalSeparator());

} // namespace huebase
