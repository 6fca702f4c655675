// What a quiet flight costs beside bare clients that do the same exchange.
#include <algorithm>
#include <array>
#include <functional>
#include <iostream>

#include "bench/driver/Until.h"
#include "bench/figures/Measuring.h"

namespace bench {

namespace {

constexpr int kRounds = 3;
constexpr int kColumns = 5;  // Orvo and the four clients
constexpr char kClients[] = "ABCD";

// A bare client beside the same simulator; `during` gets its process. False when it doesn't run.
bool WithClient(Cockpit& cockpit, char variant, const std::string& reads,
                const std::function<void(const LinuxProcess&)>& during) {
    const std::string program = OwnFolder() + "\\BareClient.exe";
    std::string line = '"' + program + "\" " + variant + ' ' + reads;
    const Process client(line, cockpit.Folder());
    const std::string before = cockpit.Simulator("batches");
    if (!Until(kPatienceMs, [&] { return cockpit.Simulator("batches") != before; })) return false;
    ::Sleep(1000);
    const auto process = LinuxProcess::Find(program);
    if (process) during(*process);
    return process.has_value();
}

// Measures Orvo, then each client, in turn.
bool InTurn(Cockpit& cockpit, const std::function<void(int column, const LinuxProcess&)>& measure) {
    const auto orvo = StartOrvo(cockpit, "");
    if (!orvo) return false;
    const std::string reads = cockpit.Simulator("reads");
    measure(0, *orvo);
    EndOrvo(cockpit);
    for (int client = 0; client + 1 < kColumns; ++client) {
        const auto during = [&](const LinuxProcess& process) { measure(client + 1, process); };
        if (!WithClient(cockpit, kClients[client], reads, during)) return false;
    }
    return true;
}

double Average(const std::vector<double>& values) {
    double sum = 0;
    for (const double value : values) sum += value;
    return values.empty() ? kNone : sum / static_cast<double>(values.size());
}

}  // namespace

bool ShowCpu(Cockpit& cockpit, uint32_t seconds) {
    std::array<std::vector<double>, kColumns> cpu, median, percentile99, perSecond;
    StartBench(cockpit);
    for (int round = 0; round < kRounds; ++round) {
        const auto measure = [&](int column, const LinuxProcess& process) {
            const Spent spent = Spend(cockpit, process, std::max(seconds / kRounds, 1U));
            const auto place = static_cast<size_t>(column);
            cpu[place].push_back(spent.cpuMsPerSecond);
            median[place].push_back(spent.ticks.median);
            percentile99[place].push_back(spent.ticks.percentile99);
            perSecond[place].push_back(spent.ticks.perSecond);
        };
        if (!InTurn(cockpit, measure)) return false;
    }
    const auto show = [](const char* what, const auto& all, auto figure) {
        ShowRow(what,
                {figure(all[0]), figure(all[1]), figure(all[2]), figure(all[3]), figure(all[4])});
    };
    const auto ofD = [&](const std::vector<double>& values) {
        return Median(values) / Median(cpu[kColumns - 1]);
    };
    ShowHead("a quiet flight, medians of 3", {"Orvo.exe", "A", "B", "C", "D"});
    show("processor, ms a second", cpu, Median);
    show("processor, the mean", cpu, Average);
    show("processor, to D", cpu, ofD);
    show("ticks a second", perSecond, Median);
    show("tick interval, median", median, Median);
    show("tick interval, 99 %", percentile99, Median);

    cockpit.KillSimulator();
    const auto orvo = StartOrvo(cockpit, "", false);
    if (!orvo) return false;
    ShowHead("without a simulator", {"Orvo.exe"});
    ShowRow("processor, ms a second", {Spend(cockpit, *orvo, seconds).cpuMsPerSecond});
    EndOrvo(cockpit);
    return true;
}

// A script counts: it is told of the process in a line, and answers with the number.
bool ShowSystemCalls(Cockpit& cockpit, uint32_t seconds) {
    std::array<double, kColumns> calls{};
    StartBench(cockpit);
    const auto measure = [&](int column, const LinuxProcess& process) {
        cockpit.Simulator("ticks");
        std::cout << "@count " << process.Id() << ' ' << seconds << std::endl;
        std::string answer;
        std::getline(std::cin, answer);
        const std::vector<double> counted = Numbers(answer);
        const auto ticks = static_cast<double>(Numbers(cockpit.Simulator("ticks")).size());
        calls[static_cast<size_t>(column)] = counted.empty() ? kNone : counted[0] / ticks;
    };
    if (!InTurn(cockpit, measure)) return false;
    ShowHead("a quiet flight", {"Orvo.exe", "A", "B", "C", "D"});
    ShowRow("system calls a tick", {calls[0], calls[1], calls[2], calls[3], calls[4]});
    return true;
}

}  // namespace bench
