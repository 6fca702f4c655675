#include "config/IniSave.h"

bool SaveIni(IniService& service, FilePort& files, const std::string& path,
             const std::function<bool(cInifile&)>& write) {
    const std::string copy = path + ".new";
    const bool ready =
        files.Exists(path) ? files.Copy(path, copy) : !files.Exists(copy) || files.Delete(copy);
    if (!ready) return false;

    cInifile ini(service);
    ini.Path = copy;
    if (write(ini) && files.Replace(copy, path)) return true;
    files.Delete(copy);
    return false;
}
