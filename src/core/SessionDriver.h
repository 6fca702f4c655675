#pragma once

#include <optional>
#include <string>

#include "base/Event.h"
#include "core/AircraftBinding.h"
#include "core/PanelUnit.h"
#include "platform/Clock.h"
#include "platform/MessageLoop.h"
#include "simlink/actions/EventOutput.h"
#include "simlink/channel/cSession.h"

// What the tick does: finds the simulator, follows it, and notices that it has gone. It drives the
// panels with what it reads, and tells what has happened, for the window to show.
class SessionDriver {
  public:
    struct Parts {
        cSession& session;
        EventOutput& output;
        Clock& clock;
        MessageLoop& loop;
        PanelLists& panels;
        AircraftBinding& binding;
    };

    explicit SessionDriver(const Parts& parts);

    // Tries to open a session, or polls the one that is up. Blocks for as long as the simulator
    // takes to answer, and may let messages run.
    void Tick();
    // The program ends: lets go of what controls hold down, and closes the channel.
    void Close();

    Event<> Connected;
    // Versions of the channel, as "3.9990" and a letter or none, and the simulator's name: each as
    // soon as it has been read in a session.
    Event<std::string> ChannelVersionRead;
    Event<std::string> SimulatorRead;
    // Title of the aircraft, empty while a flight loads; when it isn't the one told before.
    Event<std::string> AircraftSeen;
    Event<> Lost;  // nothing else has been done about it yet
    Event<> Gone;  // the channel is closed, and the panels are dark

  private:
    void TryToConnect();
    void AskVersions();
    void Poll();
    bool BindDetectedAircraft();
    void TellAircraft();
    // Goes on with what the simulator hasn't given, or let be done, before.
    void CatchUp();
    void LoseSession();

    const Parts parts_;
    NamedOffset aircraftTitle_;
    std::string detectedAircraft_;
    std::optional<std::string> toldAircraft_;  // none yet in this session
    bool channelVersionRead_ = false;
    bool simulatorRead_ = false;
};
