#include "simlink/actions/BindingTable.h"

#include <algorithm>
#include <limits>

#include "base/Number.h"
#include "simlink/actions/ActionText.h"

namespace {

using Range = BindingTable::Range;

constexpr Range kInteger16 = {std::numeric_limits<int16_t>::min(),
                              std::numeric_limits<int16_t>::max()};

void SetStandard(ActionRecord& record, double standard) {
    record.FSEvent = static_cast<ActionKind>(standard);
}

template <class Number>
void SetStandard(Number& number, double standard) {
    number = static_cast<Number>(standard);
}

void Read(const std::string& text, Range /*range*/, ActionRecord& record) {
    ReadAction(text, record);
}

void Read(const std::string& text, Range range, float& number) {
    const auto low = static_cast<float>(range.low);
    const auto high = static_cast<float>(range.high);
    number = ParseFloat(text, low, high).value_or(number);
}

void Read(const std::string& text, Range /*range*/, bool& option) {
    if (const auto number = ParseInteger<int64_t>(text)) option = *number != 0;
}

template <class Integer>
void Read(const std::string& text, Range range, Integer& number) {
    const auto low = static_cast<int64_t>(range.low);
    const auto high = static_cast<int64_t>(range.high);
    number = static_cast<Integer>(ParseInteger(text, low, high).value_or(number));
}

bool IsStandard(const ActionRecord& record, double standard) {
    return record.FSEvent == static_cast<ActionKind>(standard);
}

template <class Number>
bool IsStandard(Number number, double standard) {
    return number == static_cast<Number>(standard);
}

std::string TextOf(const ActionRecord& record) { return ActionText(record); }
std::string TextOf(float number) { return FormatFloat(number); }
std::string TextOf(int32_t number) { return FormatInteger(number); }

}  // namespace

void BindingTable::Add(std::string key, ActionRecord& record, ActionKind standard) {
    rows_.push_back({std::move(key), &record, static_cast<double>(standard), {}});
}

void BindingTable::Add(std::string key, bool& option, bool standard) {
    rows_.push_back({std::move(key), &option, static_cast<double>(standard), {}});
}

void BindingTable::Add(std::string key, int16_t& number, int16_t standard) {
    rows_.push_back({std::move(key), &number, static_cast<double>(standard), kInteger16});
}

void BindingTable::Add(std::string key, uint8_t& number, uint8_t standard, Range range) {
    rows_.push_back({std::move(key), &number, static_cast<double>(standard), range});
}

void BindingTable::Add(std::string key, float& number, float standard, Range range) {
    rows_.push_back({std::move(key), &number, static_cast<double>(standard), range});
}

void BindingTable::AddFlag(std::string key, uint8_t& flag) {
    rows_.push_back({std::move(key), &flag, 0, kByte, true});
}

void BindingTable::SetDefaults() const {
    for (const Row& row : rows_) {
        std::visit([&](auto* place) { SetStandard(*place, row.standard); }, row.place);
    }
}

void BindingTable::Take(const IniEntries& entries) const {
    for (const auto& entry : entries) {
        const auto row = std::ranges::find(rows_, entry.first, &Row::key);
        if (row == rows_.end()) continue;
        std::visit([&](auto* place) { Read(entry.second, row->range, *place); }, row->place);
    }
}

bool BindingTable::Write(IniSection& keys) const {
    return std::ranges::all_of(rows_, [&](const Row& row) {
        const std::string text = Text(row);
        return text.empty() ? keys.Delete(row.key) : keys.Set(row.key, text);
    });
}

std::string BindingTable::Text(const Row& row) {
    const auto* const* flag = std::get_if<uint8_t*>(&row.place);
    if (row.flag && flag && **flag != 1) return {};
    return std::visit(
        [&](const auto* place) {
            return IsStandard(*place, row.standard) ? std::string() : TextOf(*place);
        },
        row.place);
}
