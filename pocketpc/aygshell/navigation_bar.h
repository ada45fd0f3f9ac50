#pragma once

#include <windows.h>

// Makes the navigation bar at the top of the screen, once in a thread: it shows the title of the
// thread's active window and, where that window asked for it, the ok button. A press posts IDOK to
// the window. From then on the menu bars, too, follow the thread's windows.
void ShowNavigationBar();

// The bars follow a window from now on. Those that are no child windows are followed anyway.
void FollowWindow(HWND hwnd);

// To be called when a window's Done button came or went.
void RepaintNavigationBar();

// The window whose menu bar is to be seen: the active one, or the full-screen window that a small
// box stands over. May be null.
HWND WindowOnScreen();
