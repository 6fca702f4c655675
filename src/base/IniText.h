#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Keys of a section and their values.
using IniEntries = std::vector<std::pair<std::string, std::string>>;
// Whole sections by name.
using IniSections = std::vector<std::pair<std::string, IniEntries>>;

// The text of a private profile file, as the platform's service reads and changes it. Names compare
// without regard to case and to blanks around them; where a name comes twice the first one counts.
// Lines that mean nothing (comments, blank lines, anything without a '=') stay as they are.
class IniText {
  public:
    // Takes any content. Lines end in CRLF or LF, the last one may lack its end; what stands behind
    // a NUL in a name or a value isn't seen.
    explicit IniText(std::string_view text);

    // Without the blanks and one pair of quotes around it.
    std::optional<std::string> Value(std::string_view section, std::string_view key) const;

    // In the order of the file, as they are spelled there.
    std::vector<std::string> Keys(std::string_view section) const;
    std::vector<std::string> Sections() const;
    // The keys with their values; one that comes twice has the first value both times.
    IniEntries Entries(std::string_view section) const;
    // The keys, each once, with their values as the file has them, quotes included.
    IniEntries Written(std::string_view section) const;

    // Each gives whether it changed anything.
    bool Set(std::string_view section, std::string_view key, std::string_view value);
    bool DeleteKey(std::string_view section, std::string_view key);
    bool DeleteSection(std::string_view section);
    // Takes the section out, however often it is there, and puts a new one behind all others. The
    // keys must differ, and neither they nor the values may have what the text would misread.
    void ReplaceSection(std::string_view section, const IniEntries& entries);

    // All lines, each with CRLF behind it.
    std::string Text() const;

  private:
    enum class Kind : char { Section, Key, Other };
    struct Line {
        Kind kind;
        std::string raw;
        std::string name;
        std::string value;
    };
    using Lines = std::vector<Line>;

    static Line Parse(std::string_view raw);
    // First line of the section's header and first line behind its content; both the end of the
    // file if there is no such section.
    std::pair<size_t, size_t> Range(std::string_view section) const;
    std::optional<size_t> FindKey(std::string_view section, std::string_view key) const;
    void Insert(size_t at, std::string_view raw);

    Lines lines_;
};
