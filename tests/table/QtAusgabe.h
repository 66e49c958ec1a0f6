#pragma once
// Readable QStrings in test failure messages.
#include <QString>
#include <ostream>

inline void PrintTo(const QString& text, std::ostream* aus) { *aus << '"' << text.toStdString() << '"'; }
