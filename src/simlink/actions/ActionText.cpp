#include "simlink/actions/ActionText.h"

#include <vector>

#include "base/Number.h"
#include "base/Text.h"

namespace {

constexpr const char* kWords[] = {"None", "Offset", "VButton", "VKey"};

// Reads the pieces behind the word into a record of `kind`; false if they don't make one.
bool ReadFields(ActionKind kind, const std::vector<std::string_view>& pieces,
                ActionRecord& record) {
    record.FSEvent = kind;
    if (kind == ActionKind::None || kind == ActionKind::Offset) return true;
    if (pieces.size() < (kind == ActionKind::VKey ? 4U : 3U)) return false;
    const auto first = ParseInteger<uint8_t>(pieces[1]);
    const auto second = ParseInteger<uint8_t>(pieces[2]);
    if (!first || !second) return false;
    record.VJoystickOrKeyCode = *first;
    record.VButtonOrKeyQualifiers = *second;
    if (kind == ActionKind::VButton) return true;
    const auto ascii = ParseInteger<int16_t>(pieces[3]);
    if (ascii) record.KeyAscii = *ascii;
    return ascii.has_value();
}

}  // namespace

void ReadAction(std::string_view text, ActionRecord& record) {
    const auto pieces = Split(text, ',');
    for (int32_t kind = 0; kind < static_cast<int32_t>(std::size(kWords)); ++kind) {
        if (!EqualNoCase(Trim(pieces[0]), kWords[kind])) continue;
        ActionRecord read = record;
        if (ReadFields(static_cast<ActionKind>(kind), pieces, read)) record = read;
        return;
    }
}

std::string ActionText(const ActionRecord& record) {
    std::string text = kWords[static_cast<size_t>(record.FSEvent)];
    const auto append = [&text](int32_t number) { text += ',' + FormatInteger(number); };
    if (record.FSEvent == ActionKind::VButton || record.FSEvent == ActionKind::VKey) {
        append(record.VJoystickOrKeyCode);
        append(record.VButtonOrKeyQualifiers);
    }
    if (record.FSEvent == ActionKind::VKey) append(record.KeyAscii);
    return text;
}
