// Another ini reader must see in our options file what we see: Python's
// configparser reading the file as Windows-1252.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>

#include "settings/Einstellungen.h"

using namespace settings;

namespace {

constexpr const char* Skript =
    "import configparser, sys\n"
    "p = configparser.ConfigParser(interpolation=None)\n"
    "p.optionxform = str\n"
    "p.read(sys.argv[1], encoding='cp1252')\n"
    "for s in p.sections():\n"
    "    for k, v in p.items(s):\n"
    "        sys.stdout.buffer.write((s + '\\t' + k + '\\t' + v + '\\n').encode('utf-8'))\n";

std::string ausfuehren(const std::string& befehl) {
    std::string ausgabe;
    FILE* rohr = popen(befehl.c_str(), "r");
    if (!rohr) return ausgabe;
    char puffer[4096];
    while (const std::size_t n = fread(puffer, 1, sizeof puffer, rohr)) ausgabe.append(puffer, n);
    pclose(rohr);
    return ausgabe;
}

}  // namespace

TEST(Configparser, LiestUnsereDateiWieWir) {
    const auto ordner = std::filesystem::temp_directory_path() / ("trumpona-cp-" + std::to_string(::getpid()));
    std::filesystem::create_directories(ordner);
    const auto ini = ordner / "rupalive.ini";
    const auto py = ordner / "lesen.py";
    std::ofstream(py) << Skript;

    Einstellungen e;
    e.namen = {"Jürgen Größe", "Renée, 50 % €", "a;b #c", "Ölfuß "};
    e.geraeusch = 0;
    e.rueckseite = 3;
    e.regeln.scharferRupa = -1;
    Profildatei d = Profildatei::ausBytes("; Kommentar\r\n[Optionen]\r\nEigenes=ä\r\n");
    inProfil(d, e);
    std::ofstream(ini, std::ios::binary) << d.bytes();

    const std::string ausgabe = ausfuehren(std::string(PYTHON3) + " " + py.string() + " " + ini.string());
    std::size_t zeilen = 0;
    for (std::size_t anfang = 0; anfang < ausgabe.size();) {
        const auto ende = ausgabe.find('\n', anfang);
        const std::string zeile = ausgabe.substr(anfang, ende - anfang);
        anfang = ende + 1;
        const auto t1 = zeile.find('\t');
        const auto t2 = zeile.find('\t', t1 + 1);
        ASSERT_NE(t2, std::string::npos) << zeile;
        const std::string abschnitt = zeile.substr(0, t1);
        const std::string schluessel = zeile.substr(t1 + 1, t2 - t1 - 1);
        EXPECT_EQ(d.wert(abschnitt, schluessel), zeile.substr(t2 + 1)) << schluessel;
        ++zeilen;
    }
    // 58 keys we write and the one that was there
    EXPECT_EQ(zeilen, 59u);
    EXPECT_EQ(d.wert("Optionen", "Name1"), "Jürgen Größe");
    std::filesystem::remove_all(ordner);
}
