#include "config/OldConfiguration.h"

#include <algorithm>
#include <optional>

#include "base/Number.h"
#include "base/Text.h"
#include "config/IniFiles.h"

namespace {

const MsgBoxRequest kQuestion = {
    "Your Orvo.ini file belongs to an old version.\n"
    "Do you want to convert it to the new file format ?\n"
    "Converting to the new format will put actual settings into Default Profile.",
    "  ORVO  - Configuration file conversion request", MsgBoxIcon::Question,
    MsgBoxButtons::OkCancel};

constexpr int kLastKeptName = 999;

bool IsOld(const IniText& text) {
    return std::ranges::any_of(text.Sections(), [](const std::string& section) {
        return EqualNoCase(section, "multipanel1") || EqualNoCase(section, "radiopanel1") ||
               EqualNoCase(section, "switchpanel1");
    });
}

// Renames the file to the first of Default.1.ini, Default.2.ini, ... that is free. The new name;
// empty if none can be had.
std::string KeepUnderFreeName(FilePort& files, const std::string& folder, const std::string& file) {
    for (int number = 1; number <= kLastKeptName; ++number) {
        std::string path = folder + "\\Default." + FormatInteger(number) + ".ini";
        if (!files.Exists(path) && files.Rename(file, path)) return path;
    }
    return {};
}

// Where a file can't be renamed all stays as it is, and the next start asks again.
void Convert(FilePort& files, const std::string& folder) {
    const std::string old = folder + "\\Orvo.ini";
    const std::string profile = folder + "\\Default.ini";
    const bool inTheWay = files.Exists(profile);
    const std::string kept = inTheWay ? KeepUnderFreeName(files, folder, profile) : "";
    if (inTheWay && kept.empty()) return;
    if (!files.Rename(old, profile) && inTheWay) static_cast<void>(files.Rename(kept, profile));
}

}  // namespace

bool ConvertOldConfiguration(IniService& ini, FilePort& files, UiBackend& ui,
                             const std::string& programFolder, Patience& patience) {
    const IniFiles reader(ini, files);
    std::optional<IniText> text;
    const bool read = patience.Try(
        [&] { return (text = reader.Read(programFolder + "\\Orvo.ini")).has_value(); });
    if (!read || !IsOld(*text)) return true;
    if (ui.MsgBox(kQuestion) == MsgBoxResult::Cancel) return false;
    Convert(files, programFolder);
    return true;
}
