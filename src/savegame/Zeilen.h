#pragma once
// One value per line: integers as decimal text, truth values as "True"/"False",
// strings as the whole line. Windows-1252 with CRLF on disk.
#include <string>
#include <string_view>
#include <vector>

namespace savegame {

class Zeilenschreiber {
public:
    void zahl(int wert);
    void wahr(bool wert);
    // Line breaks inside a string become blanks, so the string stays one line.
    void text(std::string_view wert);
    std::string bytes() const;

private:
    std::string text_;
};

class Zeilenleser {
public:
    explicit Zeilenleser(std::string_view bytes);
    // Each read fails (and every later one with it) at the end of the file or
    // on a value of the wrong kind; the target is then left as it was.
    bool zahl(int& wert);
    bool wahr(bool& wert);
    bool text(std::string& wert);
    bool fehler() const { return fehler_; }
    std::size_t gelesen() const { return naechste_; }

private:
    const std::string* naechsteZeile();

    std::vector<std::string> zeilen_;
    std::size_t naechste_ = 0;
    bool fehler_ = false;
};

}  // namespace savegame
