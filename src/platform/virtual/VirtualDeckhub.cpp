#include "platform/virtual/VirtualDeckhub.h"

namespace {

class VirtualEnumerator : public PanelEnumerator {
  public:
    explicit VirtualEnumerator(const VirtualBus& bus) : bus_(bus) {}

    int16_t CountPanels(int32_t vendorId, int32_t productId) override {
        paths_ = bus_.Paths(vendorId, productId);
        return static_cast<int16_t>(paths_.size());
    }

    std::string GetPanelPath(int16_t index) override {
        if (index < 1 || static_cast<size_t>(index) > paths_.size()) return {};
        return paths_[static_cast<size_t>(index) - 1];
    }

  private:
    const VirtualBus& bus_;
    std::vector<std::string> paths_;
};

}  // namespace

std::unique_ptr<PanelEnumerator> VirtualDeckhub::CreateEnumerator() {
    if (faults_.Take(DeckhubCall::CreateEnumerator)) return nullptr;
    return std::make_unique<VirtualEnumerator>(bus_);
}

std::unique_ptr<PanelLink> VirtualDeckhub::CreateLink() {
    const bool deaf = faults_.Take(DeckhubCall::StartReading);
    return std::make_unique<VirtualLink>(bus_, clock_, loop_, starts_, reading_, deaf);
}
