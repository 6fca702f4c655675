#include "panels/bip/frmBIPPanelSetup.h"

#include <algorithm>
#include <array>
#include <string>
#include <type_traits>

#include "base/Number.h"
#include "ui/Layout.h"

namespace {

constexpr int32_t kWidth = 11130;
constexpr int32_t kNoteHeight = 240;  // above the tiles
constexpr int32_t kBeside = 7740, kSideWidth = 3270;

constexpr int32_t kBorder = 15;
constexpr int32_t kSelectedBorder = 60;
constexpr Color kBorderColor = 0;

struct ButtonCaption {
    size_t row;
    int32_t group;
    const char* text;
};

// Where the button of a row isn't what the catalogue says of it.
constexpr ButtonCaption kOtherCaptions[] = {
    {0, 0, "No Function"},
    {6, TileGroup::kEngines, "LEFT ENGINE FIRE"},
    {7, TileGroup::kEngines, "RIGHT ENGINE FIRE"},
    {39, TileGroup::kLights, "BEACON LIGHTS"},
    {40, TileGroup::kLights, "LANDING LIGHTS"},
    {42, TileGroup::kMisc, "UP"},
    {43, TileGroup::kMisc, "DOWN"},
    {46, TileGroup::kMisc, "MASTER WARNING"},
};

struct FunctionButton {
    std::string caption;
    int32_t group;
};

FunctionButton ButtonOf(size_t row) {
    const auto other = std::ranges::find(kOtherCaptions, row, &ButtonCaption::row);
    if (other != std::end(kOtherCaptions)) return {other->text, other->group};
    const TileFunction& function = TileFunctions[row];
    FunctionButton button = {std::string(function.Name), function.Group};
    std::ranges::replace(button.caption, '.', ' ');
    return button;
}

}  // namespace

frmBIPPanelSetup::frmBIPPanelSetup(const SetupServices& services, ctlBIPPanel& panel)
    : PanelSetupForm(services),
      BPActions(services.profiles),
      picPanel(this),
      OnScreen(picPanel, kNoteHeight),
      labNote(&picPanel),
      tabCat(this),
      frameTileCat{Container(this), Container(this), Container(this), Container(this),
                   Container(this), Container(this), Container(this), Container(this)},
      frameColor(this),
      optTileColor{OptionButton(&frameColor), OptionButton(&frameColor), OptionButton(&frameColor)},
      frameThreshold(this),
      sliderThreshold(&frameThreshold),
      labThreshold(&frameThreshold),
      cmbClear(this),
      cmdClearAll(this),
      frameDescription(this),
      lblDescription(&frameDescription),
      cmdOk(this),
      cmdCancel(this),
      panel_(panel),
      pages_(tabCat, {{"Engines", &frameTileCat[0]},
                      {"Fuel", &frameTileCat[1]},
                      {"Gear", &frameTileCat[2]},
                      {"Navigation", &frameTileCat[3]},
                      {"Lights", &frameTileCat[4]},
                      {"Audio", &frameTileCat[5]},
                      {"Misc", &frameTileCat[6]},
                      {"NGX", &frameTileCat[7]}}) {
    Caption = "ORVO - BIP Panel Configuration";
    PlaceAll();
    AddFunctions();
    PlaceBottom(kWidth, frameDescription.Top + frameDescription.Height, cmdOk, cmdCancel);
    FollowUser();
    Begin(BPActions);
    Services().windows.BIPSetupOpen = IsReady();
    for (int16_t tile = 0; tile < kBIPTiles; ++tile) ShowTile(tile);
    Editor.SelectTile(0);
}

frmBIPPanelSetup::~frmBIPPanelSetup() {
    if (!IsReady()) return;
    panel_.TurnPanel(LampColor::kOff);
    Services().windows.BIPSetupOpen = false;
}

void frmBIPPanelSetup::PlaceAll() {
    PlaceControls({
        {picPanel, kMargin, kMargin, 10890, 2865},
        {labNote, 150, 60, 6000, 210, "Click on the tile you want to setup"},
        {tabCat, kMargin, 3105, 7500, 2640},
        {frameColor, kBeside, 3105, kSideWidth, 690, "Tile color"},
        {optTileColor[0], 150, 300, 840, 270, "Red"},
        {optTileColor[1], 1080, 300, 960, 270, "Green"},
        {optTileColor[2], 2130, 300, 1020, 270, "Yellow"},
        {frameThreshold, kBeside, 3915, kSideWidth, 990, "Threshold"},
        {sliderThreshold, 120, 330, 2400, 540},
        {labThreshold, 2580, 405, 570, 240},
        {cmbClear, kBeside, 5025, 1590, 390, "Clear Current Tile"},
        {cmdClearAll, kBeside + 1680, 5025, 1590, 390, "Clear All Tiles"},
        {frameDescription, kMargin, 5850, kWidth - 2 * kMargin, 960, "Description"},
        {lblDescription, 180, 270, kWidth - 2 * kMargin - 360, 630},
    });
    for (Container& page : frameTileCat) page.Move(180, 3465, 7380, 2220);
    labNote.ForeColor = PanelColor::kPrint;
    labThreshold.Align = Alignment::Right;
    sliderThreshold.SetRange(0, 100);
    sliderThreshold.TickFrequency = 10;
}

// In columns, in the order of the catalogue. The button of row 0 stands for a tile without function
// and is never seen.
void frmBIPPanelSetup::AddFunctions() {
    constexpr int32_t kRows = 6, kPitch = 345, kColumnWidth = 2400;
    std::array<int32_t, std::extent_v<decltype(frameTileCat)>> places{};
    for (size_t row = 0; row < kTileFunctions; ++row) {
        const FunctionButton shown = ButtonOf(row);
        const auto page = static_cast<size_t>(shown.group - 1);
        OptionButton& button = optFunction.emplace_back(
            shown.group == 0 ? static_cast<Container*>(this) : &frameTileCat[page]);
        button.Caption = shown.caption;
        button.ToolTip = TileFunctions[row].Description;
        button.Visible = shown.group != 0;
        button.Enabled = HasContent(static_cast<int32_t>(row));
        if (shown.group == 0) continue;
        const int32_t place = places[page]++;
        button.Move(120 + place / kRows * kColumnWidth, 120 + place % kRows * kPitch,
                    kColumnWidth - 60, 270);
    }
}

void frmBIPPanelSetup::FollowUser() {
    for (size_t tile = 0; tile < kBIPTiles; ++tile) {
        const auto select = [this, tile] { Editor.SelectTile(static_cast<int16_t>(tile)); };
        OnScreen.shpTile[tile].Click.Connect(select);
        for (auto* line : {&OnScreen.lblTileR1, &OnScreen.lblTileR2, &OnScreen.lblTileR3}) {
            (*line)[tile].Click.Connect(select);
        }
    }
    for (size_t row = 0; row < optFunction.size(); ++row) {
        optFunction[row].Click.Connect(
            [this, row] { Editor.ChooseFunction(static_cast<int32_t>(row)); });
    }
    for (size_t color = 0; color < std::size(optTileColor); ++color) {
        optTileColor[color].Click.Connect([this, color] { Editor.ChooseColor(color); });
    }
    sliderThreshold.Change.Connect([this] {
        Editor.ChooseThreshold(sliderThreshold.Value());
        ShowThreshold();
    });
    cmbClear.Click.Connect([this] { Editor.ClearTile(); });
    cmdClearAll.Click.Connect([this] { Editor.ClearAllTiles(); });
    Editor.TileChanged.Connect([this](int16_t tile) { ShowTile(tile); });
    Editor.SelectedChanged.Connect([this] { ShowSelected(); });
}

void frmBIPPanelSetup::ShowTile(int16_t tile) {
    OnScreen.SetCaption(static_cast<size_t>(tile), BPActions.GetName(tile));
    OnScreen.SetFace(static_cast<size_t>(tile), BPActions.GetColor(tile));
}

void frmBIPPanelSetup::ShowSelected() {
    const int16_t tile = Editor.Selected();
    const auto frame = [this](int32_t width, Color color) {
        OnScreen.shpTile[framedTile_].BorderWidth = width;
        OnScreen.shpTile[framedTile_].BorderColor = color;
    };
    frame(kBorder, kBorderColor);
    framedTile_ = static_cast<size_t>(tile);
    frame(kSelectedBorder, PanelColor::kWhite);

    optFunction[shownFunction_].SetValue(false);
    shownFunction_ = static_cast<size_t>(BPActions.GetTileFunction(tile));
    optFunction[shownFunction_].SetValue(true);
    lblDescription.Caption = BPActions.GetDescription(tile);
    frameColor.Enabled = BPActions.hasColorSel(tile);
    if (frameColor.Enabled) {
        for (size_t i = 0; i < std::size(optTileColor); ++i) {
            optTileColor[i].SetValue(BPActions.GetColor(tile) == TileEditor::kColors[i]);
        }
    }
    frameThreshold.Enabled = BPActions.hasThresholdSel(tile);
    if (frameThreshold.Enabled) sliderThreshold.SetValue(BPActions.GetThreshold(tile));
    ShowThreshold();
    const int32_t group = BPActions.GetTilesGroup(tile);
    if (group != 0 && group != tabCat.SelectedItem()) tabCat.Select(group);
}

void frmBIPPanelSetup::ShowThreshold() {
    labThreshold.Caption =
        frameThreshold.Enabled ? FormatInteger(sliderThreshold.Value()) + " %" : "";
}
