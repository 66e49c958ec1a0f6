#pragma once
// Starting Qt for the window modes: German standard buttons, and the offscreen
// platform when a headless mode runs without a display.
#include <QApplication>
#include <memory>

namespace app {

// Nothing (after a message on stderr) when the window modes have no display to
// show on: Qt would abort the program there. A headless mode (`ohneAnzeigeErlaubt`)
// draws offscreen instead.
std::unique_ptr<QApplication> anwendungStarten(int& argc, char** argv, bool ohneAnzeigeErlaubt);

}  // namespace app
