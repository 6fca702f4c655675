#include "bench/console/LineServer.h"

#include <iostream>

namespace bench {

void ServeLines(const std::function<std::string(const Command&)>& answer) {
    std::string line;
    while (std::getline(std::cin, line)) {
        const Command command = ParseCommand(line);
        if (command.name.empty()) continue;
        const bool end = command.name == "end";
        std::cout << (end ? "ok" : answer(command)) << std::endl;
        if (end) return;
    }
}

}  // namespace bench
