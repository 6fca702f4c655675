#include "simlink/actions/KeyStrokeText.h"

#include "base/Number.h"
#include "base/Text.h"

namespace {

// By the qualifier bits: 1 SHIFT, 2 CTRL, 4 TAB.
constexpr const char* kPrefixes[] = {"",     "SHIFT-",     "CTRL-",     "CTRL-SHIFT-",
                                     "TAB-", "SHIFT-TAB-", "CTRL-TAB-", "CTRL-SHIFT-TAB-"};

struct NamedKey {
    uint8_t code;
    const char* name;
};

constexpr NamedKey kNamedKeys[] = {
    {8, "BACKSPACE"},  {13, "ENTER"},     {19, "PAUSE"},        {27, "ESC"},
    {32, "SPACE"},     {33, "PAGE UP"},   {34, "PAGE DOWN"},    {35, "END"},
    {36, "HOME"},      {37, "LEFT"},      {38, "UP"},           {39, "RIGHT"},
    {40, "DOWN"},      {44, "PRINT SCR"}, {45, "INS"},          {46, "DEL"},
    {106, "NUMPAD *"}, {107, "NUMPAD +"}, {109, "NUMPAD -"},    {110, "NUMPAD ."},
    {111, "NUMPAD /"}, {144, "NUM LOCK"}, {145, "SCROLL LOCK"},
};

std::string KeyName(uint8_t code, int16_t ascii) {
    for (const NamedKey& key : kNamedKeys) {
        if (key.code == code) return key.name;
    }
    if (code >= 96 && code <= 105) return std::string("NUMPAD ") + FormatInteger(code - 96);
    if (code >= 112 && code <= 127) return std::string("F") + FormatInteger(code - 111);
    if (ascii < 1 || ascii > 255) return "???";
    return {ToUpper(static_cast<char>(ascii))};
}

}  // namespace

std::string KeyStrokeText(uint8_t KeyCode, uint8_t KeyQualifiers, int16_t KeyAscii) {
    std::string text = KeyQualifiers < std::size(kPrefixes) ? kPrefixes[KeyQualifiers] : "";
    text += KeyName(KeyCode, KeyAscii);
    return text;
}
