#include "bench/virtual/PanelWatch.h"

#include "bench/panels/PanelWords.h"

namespace {

constexpr struct {
    const char* kind;
    const char* firstWord;  // of a report that the panel understands
} kWords[] = {{"radio", "upper"}, {"multi", "upper"}, {"switch", "gear"}, {"bip", "tiles"}};

bool IsRight(PanelKind kind, const VirtualDevice::Report& report) {
    if (kind == PanelKind::BIP) {
        if (report[0] == kTileReportId) return report.size() == kTileReportSize;
        // It comes in the length of the tiles' as well.
        return report[0] == kBrightnessReportId && report[1] <= 100 &&
               (report.size() == kBrightnessReportSize || report.size() == kTileReportSize);
    }
    const auto& words = kWords[static_cast<size_t>(kind)];
    const std::string shown =
        bench::DescribeFeature(words.kind, std::string(report.begin(), report.end()));
    return report[0] == 0 && shown.starts_with(words.firstWord) &&
           shown.find('?') == std::string::npos;
}

}  // namespace

std::string WrongReports(PanelKind kind, VirtualDevice& device) {
    std::string wrong;
    for (const VirtualDevice::Report& report : device.featureReports) {
        if (IsRight(kind, report)) continue;
        wrong = device.path + " was sent";
        for (const uint8_t byte : report) wrong += ' ' + std::to_string(byte);
    }
    device.featureReports.clear();
    return wrong;
}
