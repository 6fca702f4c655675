#include "panels/bip/cBIPPanelLogic.h"

#include "base/Number.h"

cBIPPanelLogic::cBIPPanelLogic(const LogicServices& services, ctlBIPPanel& control, int16_t index,
                               const WindowState& windows)
    : cPanelLogic(services.session, control),
      Index(index),
      profiles_(services.profiles),
      control_(control),
      windows_(windows),
      offsets_(session_.OffsetTable, kTileOffsets),
      power_(session_.OffsetTable) {}

void cBIPPanelLogic::StartUp() {
    BPActions = std::make_unique<cBIPPanelActionHolder>(profiles_);
    BPActions->Index = Index;
    LoadSetup();
    SetupChanged();
}

void cBIPPanelLogic::ApplySetup() { RegisterTileOffsets(); }

void cBIPPanelLogic::RegisterTileOffsets() {
    gearTilesInUse_ = false;
    power_.Register();
    for (int16_t tile = 0; tile < kBIPTiles; ++tile) {
        control_.SetTileLabel(tile, BPActions->GetName(tile));
        const TileRule& rule = RuleOf(tile);
        Register(rule.value);
        Register(rule.other);
        for (const TileOffset offset : rule.alsoRead) Register(offset);
        if (NeedsGear(rule.test)) gearTilesInUse_ = true;
    }
}

void cBIPPanelLogic::Register(TileOffset offset) {
    if (offset != TileOffset::None) offsets_.Register(static_cast<size_t>(offset));
}

const TileRule& cBIPPanelLogic::RuleOf(int16_t tile) const {
    const TileFunction& function = BPActions->FunctionOf(tile);
    return session_.SpecialMode == kNGXMode ? function.NGX : function.Standard;
}

double cBIPPanelLogic::Value(TileOffset offset) const {
    return offset == TileOffset::None ? 0.0 : offsets_[static_cast<size_t>(offset)].Data();
}

void cBIPPanelLogic::Refresh() {
    if (windows_.BIPSetupOpen) {
        NoteChange();
        return;
    }
    if (!power_.IsOn()) {
        control_.TurnPanel(LampColor::kOff);
        return;
    }
    if (gearTilesInUse_) ReadGear();
    for (int16_t tile = 0; tile < kBIPTiles; ++tile) ShowTile(tile);
}

void cBIPPanelLogic::ReadGear() {
    using O = TileOffset;
    const struct {
        GearLeg& leg;
        O position, transit, locked;
    } legs[] = {
        {noseGear_, O::GearNose, O::NGXMainGearTransit2, O::NGXMainGearLocked2},
        {rightGear_, O::GearRight, O::NGXMainGearTransit1, O::NGXMainGearLocked1},
        {leftGear_, O::GearLeft, O::NGXMainGearTransit3, O::NGXMainGearLocked3},
    };
    const bool ngx = session_.SpecialMode == kNGXMode;
    for (const auto& each : legs) {
        if (!ngx) {
            each.leg = GearLegAt(RoundTo<int32_t>(Value(each.position)));
        } else if (Value(each.locked) == 1) {
            each.leg = GearLeg::Down;
        } else {
            each.leg = Value(each.transit) == 1 ? GearLeg::Moving : GearLeg::Up;
        }
    }
}

bool cBIPPanelLogic::AllLegs(GearLeg leg) const {
    return noseGear_ == leg && rightGear_ == leg && leftGear_ == leg;
}

bool cBIPPanelLogic::AnyLeg(GearLeg leg) const {
    return noseGear_ == leg || rightGear_ == leg || leftGear_ == leg;
}

void cBIPPanelLogic::ShowTile(int16_t tile) {
    const TileRule& rule = RuleOf(tile);
    if (ChoosesColor(rule.test)) {
        ShowCustom(tile, rule);
    } else if (const auto lit = Judge(rule, BPActions->GetThreshold(tile))) {
        SetTile(tile, *lit ? BPActions->GetColor(tile) : LampColor::kOff);
    }
}

std::optional<bool> cBIPPanelLogic::Judge(const TileRule& rule, int32_t threshold) const {
    const double value = Value(rule.value);
    const double other = Value(rule.other);
    const double limit = static_cast<double>(rule.number) * threshold / rule.divisor;
    switch (rule.test) {
        case TileTest::Off:
            return false;
        case TileTest::Bits:
            return (RoundTo<int32_t>(value) & rule.number) != 0;
        case TileTest::NotZero:
            return value != 0 || other != 0;
        case TileTest::Is:
            return value == rule.number;
        case TileTest::Below:
            return value < limit;
        case TileTest::Above:
            return value > limit;
        case TileTest::ShareBelow:
            if (other == 0) return std::nullopt;
            return value / other * 100 < threshold;
        case TileTest::GearDown:
            return AllLegs(GearLeg::Down);
        case TileTest::GearUp:
            return AllLegs(GearLeg::Up);
        case TileTest::GearMoves:
            return AnyLeg(GearLeg::Moving);
        default:
            return std::nullopt;
    }
}
