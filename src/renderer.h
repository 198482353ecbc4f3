#pragma once

/// Chooses what draws the windows of this process. Call it on the UI thread before the first window, while
/// there is an application object on the user's platform.
void chooseRenderer();
