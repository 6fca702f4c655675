#include "config/IniSave.h"

#include <algorithm>

#include "base/Text.h"

bool SaveIni(IniService& service, FilePort& files, const std::string& path,
             const std::function<bool(cInifile&)>& write) {
    const std::string copy = path + ".new";
    const bool ready =
        files.Exists(path) ? files.Copy(path, copy) : !files.Exists(copy) || files.Delete(copy);
    if (!ready) return false;

    cInifile ini(service);
    ini.Path = copy;
    if (write(ini) && (!files.Exists(copy) || files.Replace(copy, path))) return true;
    files.Delete(copy);
    return false;
}

bool SetKey(cInifile& ini, const std::vector<std::string>& keys, const std::string& text) {
    const bool there = std::ranges::find(keys, ini.Key) != keys.end();
    if (!there && !DeleteIfThere(ini, keys)) return false;
    ini.SetValue(text);
    return ini.Success();
}

bool DeleteIfThere(cInifile& ini, const std::vector<std::string>& keys) {
    // A key that a hand wrote twice would come to light when only its first one went.
    return std::ranges::all_of(keys, [&ini](const std::string& key) {
        if (!EqualNoCase(key, ini.Key)) return true;
        ini.DeleteKey();
        return ini.Success();
    });
}
