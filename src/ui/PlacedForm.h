#pragma once

#include <cstdint>
#include <optional>
#include <utility>

#include "toolkit/Form.h"
#include "ui/WindowServices.h"

// A form that opens where it stood when it was closed last: two fields of the general options hold
// its place. They reach the file with the next save of the options.
class PlacedForm : public Form {
  public:
    struct PlaceFields {
        int32_t cSetupHolder::*top;
        int32_t cSetupHolder::*left;
    };

    PlacedForm(const WindowServices& services, PlaceFields fields);

    // Puts the form where its fields say; its size must be set. When it goes, it stores its place.
    void Place();
    void StorePlace();

    // Opens it, and returns when it is closed. The icon's double click is blocked meanwhile.
    void OpenModally();

  protected:
    const WindowServices& Services() const { return services_; }

  private:
    const WindowServices services_;
    const PlaceFields fields_;
    bool placed_ = false;
    // Left and top that the window got before the options could be read.
    std::optional<std::pair<int32_t, int32_t>> placedBlind_;
};
