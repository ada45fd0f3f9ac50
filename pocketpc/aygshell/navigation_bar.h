#pragma once

// Makes the navigation bar at the top of the screen, once: it shows the title of the thread's
// active window and, where that window asked for it, the ok button. A press posts IDOK to the
// window.
void ShowNavigationBar();

// To be called when a window's Done button came or went.
void RepaintNavigationBar();
