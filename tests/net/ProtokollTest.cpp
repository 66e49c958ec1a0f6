#include <gtest/gtest.h>

#include "net/Namen.h"
#include "net/Protokoll.h"

TEST(Protokoll, ZeilenJeRolle) {
    net::Protokoll p;
    p.hostGesendet("Jürgen", "Kart?3");
    p.hostEmpfangen("Jürgen", "Karte24#1");
    p.gastGesendet("Name:Ann");
    p.gastEmpfangen("Start");
    p.nochZuBearbeiten("Verte1 ~&~");
    EXPECT_EQ(p.text(), "\nJ\xFCrgen: Kart?3\n  < J\xFCrgen: Karte24#1\nName:Ann\n  < Start\n*** Noch zu bearbeiten: Verte1 ~&~ ***");
    EXPECT_EQ(p.letzteZeile(), "*** Noch zu bearbeiten: Verte1 ~&~ ***");
}

// Past 32000 characters the beginning goes, at a point that depends on the writer.
TEST(Protokoll, SchnittpunkteJeRolle) {
    struct Fall {
        void (*schreiben)(net::Protokoll&);
        std::string bleibt;
    };
    const std::vector<Fall> faelle{
        {[](net::Protokoll& p) { p.hostGesendet("A", "x"); }, "A: x"},             // after the first 32000
        {[](net::Protokoll& p) { p.hostEmpfangen("A", "x"); }, "\n  < A: x"},      // from the 32000th on
        {[](net::Protokoll& p) { p.gastEmpfangen("x"); }, "\n  < x"},              // from the 32000th on
        {[](net::Protokoll& p) { p.gastGesendet("x"); }, std::string(1999, 'a') + "\nx"},  // after the first 30000
    };
    for (const Fall& f : faelle) {
        net::Protokoll p;
        p.gastGesendet(std::string(31998, 'a'));
        ASSERT_EQ(p.text().size(), 31999u);
        f.schreiben(p);
        EXPECT_EQ(p.text(), f.bleibt);
    }
}

TEST(Namen, PruefungenDerAnmeldung) {
    const std::vector<std::pair<std::string, std::string>> faelle{
        {"Anna", ""},
        {"Jürgen", ""},
        {"Abcdefghijklm", ""},
        {"Abcdefghijklmn", "Bitte nicht mehr als 13 Zeichen für Ihren Namen eingeben!"},
        {"Spieler2", "Spieler2 ist kein gülter Name bei Netzwerkspielen! Bitte wählen Sie einen anderen Namen!"},
        {"sPiElEr", "sPiElEr ist kein gülter Name bei Netzwerkspielen! Bitte wählen Sie einen anderen Namen!"},
        {"Computerfreund", "Bitte nicht mehr als 13 Zeichen für Ihren Namen eingeben!"},
        {"computer1", "computer1 ist kein gültiger Name!"},
        {"COMPUTERx", "COMPUTERx ist kein gültiger Name!"},
        {"1Anna", "Der Name 1Anna ist ungültig! Bitte nur Buchstaben und Zahlen eingeben!\nDas erste Zeichen muß ein Buchstabe sein!"},
        {"An na", "Der Name An na ist ungültig! Bitte nur Buchstaben und Zahlen eingeben!\nDas erste Zeichen muß ein Buchstabe sein!"},
        {"", "Sie müssen einen Namen eingegeben!"},
    };
    for (const auto& [name, meldung] : faelle) EXPECT_EQ(net::namePruefen(name).value_or(""), meldung) << name;
}

TEST(Namen, WasDerGastgeberAusEinemNamenMacht) {
    EXPECT_EQ(net::nameBereinigen("Abcdefghijklmn"), "Abcdefghijklm");
    EXPECT_EQ(net::nameBereinigen("J\xFCrgen"), "Jürgen");
    EXPECT_EQ(net::nameBereinigen("An\r\nna\x7f"), "Anna");
    EXPECT_EQ(net::nameBereinigen(""), "");
}
