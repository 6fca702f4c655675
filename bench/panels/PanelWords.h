#pragma once

#include <string>
#include <string_view>

namespace bench {

// What a person sees on a panel of this kind after a feature report, in words; the report in
// hexadecimal for a size that this kind doesn't have.
std::string DescribeFeature(std::string_view kind, const std::string& report);

}  // namespace bench
