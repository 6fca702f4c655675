#include <vector>

#include "base/IniText.h"
#include "contract/ContractPlatform.h"

namespace {

using Names = std::vector<std::string>;

class IniServiceContract : public ContractTest {
  protected:
    // What a buffer of `size` characters gets, by the length that the service gives.
    std::string Read(const std::optional<std::string>& section,
                     const std::optional<std::string>& key, const std::string& fallback = "",
                     size_t size = 255) {
        buffer.assign(size, '#');
        const uint32_t length =
            ports.ini.GetPrivateProfileStringA(section, key, fallback, buffer, path);
        EXPECT_LE(length, size);
        return {buffer.data(), length};
    }

    Names List(const std::optional<std::string>& section) {
        const std::string text = Read(section, std::nullopt, "", 8192);
        Names names;
        for (size_t at = 0; at < text.size(); at = text.find('\0', at) + 1) {
            names.emplace_back(text.c_str() + at);
        }
        return names;
    }

    bool Write(const std::string& section, const std::optional<std::string>& key,
               const std::optional<std::string>& value) {
        return ports.ini.WritePrivateProfileStringA(section, key, value, path);
    }

    // Lines of the file. Blank ones are left out: systems differ in what they do with them.
    Names Lines() {
        Names lines;
        std::string text = machine.Look(path).value_or("");
        for (size_t end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n")) {
            if (end > 0) lines.push_back(text.substr(0, end));
            text.erase(0, end + 2);
        }
        if (!text.empty()) lines.push_back(text + "<no line end>");
        return lines;
    }

    std::string path = machine.Path("contract.ini");
    std::vector<char> buffer;
};

TEST_F(IniServiceContract, ReadsOddSpellings) {
    struct Case {
        std::string name, file, section, key, expected;
    };
    const std::vector<Case> cases = {
        {"plain", "[A]\r\nx=1\r\n", "A", "x", "1"},
        {"LF only", "[A]\nx=1\ny=2\n", "A", "y", "2"},
        {"no line end at the end", "[A]\r\nx=1", "A", "x", "1"},
        {"value cut off at the end", "[A]\r\nx=", "A", "x", ""},
        {"key cut off at the end", "[A]\r\nx", "A", "x", "fallback"},
        {"section cut off at the end", "[A]\r\nx=1\r\n[B", "A", "x", "1"},
        {"case of section and key", "[General Setup]\r\nAutoQuit=1\r\n", "general SETUP",
         "AUTOquit", "1"},
        {"blanks around key and value", "[A]\r\n \t x \t = \t a b \t \r\n", "A", "x", "a b"},
        {"blanks around the header", "  [A]  \r\nx=1\r\n", "A", "x", "1"},
        {"blanks around the names asked for", "[A]\r\nx=1\r\n", " A ", " x ", "1"},
        {"blanks inside names", "[A B]\r\nx y=1\r\n", "A B", "x y", "1"},
        {"double quotes", "[A]\r\nx=\" 1 \"\r\n", "A", "x", " 1 "},
        {"single quotes", "[A]\r\nx=' 1 '\r\n", "A", "x", " 1 "},
        {"one pair of quotes only", "[A]\r\nx=\"\"1\"\"\r\n", "A", "x", "\"1\""},
        {"quotes that don't match", "[A]\r\nx=\"1'\r\n", "A", "x", "\"1'"},
        {"a single quote sign", "[A]\r\nx=\"\r\n", "A", "x", "\""},
        {"quotes within", "[A]\r\nx=a \"b\" c\r\n", "A", "x", "a \"b\" c"},
        {"equals signs in the value", "[A]\r\nx==1=2\r\n", "A", "x", "=1=2"},
        {"brackets in the value", "[A]\r\nx=[B]\r\ny=2\r\n", "A", "y", "2"},
        {"semicolon in the value", "[A]\r\nx=1 ; 2\r\n", "A", "x", "1 ; 2"},
        {"empty value isn't missing", "[A]\r\nx=\r\n", "A", "x", ""},
        {"blanks only", "[A]\r\nx=  \t\r\n", "A", "x", ""},
        {"line without equals sign", "[A]\r\nx\r\ny=2\r\n", "A", "x", "fallback"},
        {"comment", "[A]\r\n;x=1\r\nx=2\r\n", "A", "x", "2"},
        {"first of two keys", "[A]\r\nx=1\r\nX=2\r\n", "A", "x", "1"},
        {"first of two sections", "[A]\r\nx=1\r\n[B]\r\n[a]\r\nx=2\r\n", "A", "x", "1"},
        {"only the first of two sections", "[A]\r\nx=1\r\n[A]\r\ny=2\r\n", "A", "y", "fallback"},
        {"key before any section", "x=1\r\n[A]\r\n", "A", "x", "fallback"},
        {"key of another section", "[A]\r\n[B]\r\nx=1\r\n", "A", "x", "fallback"},
        {"no such section", "[AB]\r\nx=1\r\n", "A", "x", "fallback"},
        {"no such key", "[A]\r\nxy=1\r\n", "A", "x", "fallback"},
        {"empty file", "", "A", "x", "fallback"},
        // Not every system folds their case.
        {"letters beyond ASCII", "[\xC4]\r\n\xD6=\xFC\x80\r\n", "\xC4", "\xD6", "\xFC\x80"},
    };
    for (const Case& each : cases) {
        machine.Put(path, each.file);
        EXPECT_EQ(Read(each.section, each.key, "fallback"), each.expected) << each.name;
        EXPECT_EQ(IniText(each.file).Value(each.section, each.key).value_or("fallback"),
                  each.expected)
            << each.name << ", read by ourselves";
    }
}

TEST_F(IniServiceContract, ListsNamesInTheOrderOfTheFile) {
    const std::string file =
        "stray=0\r\n; remark\r\n[Zulu]\r\nb = 1\r\n;c=2\r\nodd line\r\nA=3\r\n\r\n a b = "
        "\r\nB=2\r\n"
        "[empty]\r\n[Alpha]\r\nx=1\r\n[zulu]\r\nlost=1";
    machine.Put(path, file);
    EXPECT_EQ(List(std::nullopt), (Names{"Zulu", "empty", "Alpha", "zulu"}));
    EXPECT_EQ(List("ZULU"), (Names{"b", "A", "a b", "B"}));
    EXPECT_EQ(IniText(file).Sections(), List(std::nullopt));
    EXPECT_EQ(IniText(file).Entries("ZULU"),
              (IniEntries{{"b", "1"}, {"A", "3"}, {"a b", ""}, {"B", Read("Zulu", "B")}}));
    EXPECT_EQ(List("Alpha"), Names{"x"});
    EXPECT_EQ(List("empty"), Names{});
    EXPECT_EQ(List("none"), Names{});
}

TEST_F(IniServiceContract, MissingFileCountsAsEmptyAndARefusedOneStaysMissing) {
    EXPECT_EQ(Read("A", "x", "fallback  "), "fallback") << "blanks at its end are taken off";
    EXPECT_EQ(List(std::nullopt), Names{});
    EXPECT_EQ(List("A"), Names{});
    path = machine.UnwritablePath();
    EXPECT_FALSE(Write("A", "x", "1"));
    EXPECT_EQ(machine.Look(path), std::nullopt);
    EXPECT_EQ(Read("A", "x", "fallback"), "fallback");
}

TEST_F(IniServiceContract, CutsValuesToTheBuffer) {
    const std::string digits = "0123456789";
    machine.Put(path, "[A]\r\nx=" + std::string(300, 'v') + "\r\ny=" + digits + "\r\n");
    EXPECT_EQ(Read("A", "x"), std::string(254, 'v'));
    EXPECT_EQ(buffer[254], '\0');
    EXPECT_EQ(Read("A", "y", "", 11), digits);
    EXPECT_EQ(Read("A", "y", "", 10), digits.substr(0, 9));
    EXPECT_EQ(buffer[9], '\0');
    EXPECT_EQ(Read("A", "none", digits, 5), "0123") << "the fallback is cut alike";
    EXPECT_EQ(Read("A", "y", "", 1), "");
    EXPECT_EQ(buffer[0], '\0');
    EXPECT_EQ(Read("A", "y", "", 0), "");
}

TEST_F(IniServiceContract, CutsListsToTheBufferLessTwo) {
    std::string keys = "[Long]\r\n", keyNames, sections, sectionNames;
    for (int i = 1000; i < 2100; ++i) {
        const std::string name = "Name" + std::to_string(i);
        keys += name + "=" + std::to_string(i) + "\r\n";
        sections += "[" + name + "]\r\n";
        keyNames += name + '\0';
    }
    sectionNames = std::string("Long") + '\0' + keyNames;
    machine.Put(path, keys + sections);

    // The second NUL of a list that was cut is not asked for: not every system sets it.
    EXPECT_EQ(Read("Long", std::nullopt, "", 8192), keyNames.substr(0, 8190));
    EXPECT_EQ(buffer[8190], '\0');
    EXPECT_EQ(Read(std::nullopt, std::nullopt, "", 8192), sectionNames.substr(0, 8190));
    EXPECT_EQ(buffer[8190], '\0');
    EXPECT_EQ(Read("Long", "Name2099"), "2099") << "a key beyond the list can still be read";

    // One that just fits.
    EXPECT_EQ(Read("Long", std::nullopt, "", keyNames.size() + 2), keyNames);
    EXPECT_EQ(Read(std::nullopt, std::nullopt, "", sectionNames.size() + 2), sectionNames);
}

TEST_F(IniServiceContract, WritesMakeAndChangeKeysAndKeepTheRest) {
    EXPECT_TRUE(Write("A", "x", "1"));
    EXPECT_TRUE(Write("A", "y", " 2 "));
    EXPECT_TRUE(Write("B", "x", "3"));
    EXPECT_TRUE(Write("a", "X", "4"));
    EXPECT_TRUE(Write(" A ", " z ", ""));
    EXPECT_EQ(Read("A", "x"), "4");
    EXPECT_EQ(Read("A", "y"), "2");
    EXPECT_EQ(Read("A", "z", "fallback"), "");
    EXPECT_EQ(List("A"), (Names{"x", "y", "z"})) << "old spelling and order stay";
    EXPECT_EQ(List(std::nullopt), (Names{"A", "B"}));
    EXPECT_EQ(Lines().front(), "[A]");

    machine.Put(path, "; head\n[A]\n; of x\nx=1\nodd line\n[B]\ny='2'\n; tail");
    EXPECT_TRUE(Write("A", "x", "5"));
    EXPECT_TRUE(Write("A", "new", "6"));
    EXPECT_TRUE(Write("C", "z", "7"));
    EXPECT_EQ(Lines(), (Names{"; head", "[A]", "; of x", "x=5", "odd line", "new=6", "[B]", "y='2'",
                              "; tail", "[C]", "z=7"}));
}

TEST_F(IniServiceContract, DeletesKeysAndSections) {
    const std::string file = "[A]\r\nx=1\r\nX=2\r\ny=3\r\n; of A\r\n[B]\r\nz=4\r\n[a]\r\nw=5\r\n";
    machine.Put(path, file);
    EXPECT_TRUE(Write("a", "X", std::nullopt));
    EXPECT_EQ(Lines(), (Names{"[A]", "X=2", "y=3", "; of A", "[B]", "z=4", "[a]", "w=5"}))
        << "the first of two goes";
    EXPECT_TRUE(Write("A", "none", std::nullopt));
    EXPECT_TRUE(Write("none", std::nullopt, std::nullopt));
    EXPECT_TRUE(Write("B", "z", std::nullopt));
    EXPECT_EQ(List(std::nullopt), (Names{"A", "B", "a"})) << "an empty section stays";
    EXPECT_TRUE(Write("A", std::nullopt, std::nullopt));
    EXPECT_EQ(Lines(), (Names{"[B]", "[a]", "w=5"}));
}

TEST_F(IniServiceContract, RoundTripsWhatAValueCanHold) {
    std::string bytes;
    for (int code = 0x20; code <= 0xFF; ++code) bytes += static_cast<char>(code);
    const Names values = {
        "x" + bytes + "x", std::string(254, 'v'), "-1.5", "a=b", ";a", "[a]", "a'b\""};
    for (const std::string& value : values) {
        EXPECT_TRUE(Write("A", "x", value));
        EXPECT_EQ(Read("A", "x"), value);
    }
    EXPECT_TRUE(Write("A", "x", "\"quoted\""));
    EXPECT_EQ(Read("A", "x"), "quoted");
}

TEST_F(IniServiceContract, SurvivesHostileContent) {
    std::string garbage;
    uint32_t random = 1;
    for (int i = 0; i < 200000; ++i) {
        random = random * 1664525 + 1013904223;
        garbage += static_cast<char>(random >> 24);
    }
    const std::string known = "[A]\r\nx=1\r\n";
    const Names files = {
        known + garbage,
        known + std::string(100000, '\0'),
        known + "y=" + std::string(1000000, 'v'),
        known + "[" + std::string(1000000, '['),
        known + std::string(1000000, '=') + "\r\n" + std::string(1000000, ']'),
        known + "y=a" + std::string(1, '\0') + "b\r\n",
    };
    for (const std::string& file : files) {
        machine.Put(path, file);
        EXPECT_EQ(Read("A", "x"), "1");
        EXPECT_LE(Read("A", std::nullopt, "", 8192).size(), 8190u);
        EXPECT_LE(Read(std::nullopt, std::nullopt, "", 8192).size(), 8190u);
        EXPECT_TRUE(Write("A", "x", "2"));
        EXPECT_EQ(Read("A", "x"), "2");
    }
    machine.Put(path, files.back());
    EXPECT_EQ(Read("A", "y"), "a");
}

}  // namespace
