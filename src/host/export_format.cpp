#include "host/export_format.h"

#include "util/vb_error.h"
#include "util/vb_numeric.h"

namespace huebase {

std::int32_t hostColor(ColorValue color) {
    const std::int64_t red = RedOf(color);
    const std::int64_t green = GreenOf(color);
    const std::int64_t blue = BlueOf(color);
    return checkedInt32(red * 65536 + green * 256 + blue);
}

std::string fixedField(const Variant& field, char decimalSeparator) {
    switch (field.kind()) {
    case Variant::Kind::Empty:
        return {};
    case Variant::Kind::Number:
        return formatFixed(field.toNumber(), decimalSeparator);
    case Variant::Kind::Text:
        break;
    }
    double number = 0.0;
    try {
        number = field.toNumber();
    } catch (const VbError&) {
        return field.toText();
    }
    return formatFixed(number, decimalSeparator);
}

std::string exportLine(const Variant& key, std::int32_t hostColorValue, char decimalSeparator) {
    std::string line = fixedField(key, decimalSeparator);
    line += ',';
    line += formatFixed(hostColorValue, decimalSeparator);
    return line;
}

} // namespace huebase
