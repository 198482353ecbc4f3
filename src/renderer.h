#pragma once

/// Chooses what draws the windows of this process. With an application object on the user's platform, before
/// the first window. UI thread.
void chooseRenderer();
