#pragma once

#include "Pictures.h"
#include "User.h"

#include <wayvane/model/WVGuide.h>

#include <memory>

namespace trailbook {

class MainWindow;

/// Plays the guide and follows it by clicking each target, with a picture of every step once its animation
/// has settled. True when the guide was completed.
bool filmGuide(User& user, Pictures& pictures, const std::shared_ptr<wayvane::WVGuide>& guide,
               const QString& name);

/// Records a guide from the Help menu, saves it under `guideName`, finds it in the Help menu and follows it.
bool filmRecording(User& user, MainWindow& window, Pictures& pictures, const QString& guideName);

/// Takes close-ups of what an author sees while recording: hover display, popover and badge, also at the
/// edges of the screen.
bool filmPanels(User& user, MainWindow& window, Pictures& pictures);

} // namespace trailbook
