#include "config/IniKey.h"

#include <charconv>

namespace {

bool MustBeEscaped(std::string_view text, size_t at) {
    const char c = text[at];
    const auto code = static_cast<unsigned char>(c);
    if (code < 0x20 || code >= 0x7F || c == '=' || c == '%') return true;
    if (at == 0 && (c == '[' || c == ';')) return true;
    return c == ' ' && (at == 0 || at + 1 == text.size());
}

}  // namespace

std::string ToIniKey(std::string_view text) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string key;
    for (size_t at = 0; at < text.size(); ++at) {
        if (!MustBeEscaped(text, at)) {
            key += text[at];
            continue;
        }
        const auto code = static_cast<unsigned char>(text[at]);
        key += {'%', kDigits[code >> 4], kDigits[code & 15]};
    }
    return key;
}

std::string FromIniKey(std::string_view key) {
    std::string text;
    while (!key.empty()) {
        unsigned char code = 0;
        const std::string_view digits = key.substr(1, 2);
        const char* end = digits.data() + digits.size();
        const bool escaped = key[0] == '%' && digits.size() == 2 &&
                             std::from_chars(digits.data(), end, code, 16).ptr == end;
        text += escaped ? static_cast<char>(code) : key[0];
        key.remove_prefix(escaped ? 3 : 1);
    }
    return text;
}
