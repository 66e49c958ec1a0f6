#pragma once
// Starting Qt for the window modes: German standard buttons, and the offscreen
// platform when a headless mode runs without a display.
#include <QApplication>
#include <memory>

namespace app {

std::unique_ptr<QApplication> anwendungStarten(int& argc, char** argv, bool ohneAnzeigeErlaubt);

}  // namespace app
