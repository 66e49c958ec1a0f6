#include <gtest/gtest.h>

#include "net/Nachricht.h"

using net::Empfangspuffer;

namespace {

std::vector<std::string> alleNehmen(Empfangspuffer& p) {
    std::vector<std::string> n;
    while (auto m = p.nehmen()) n.push_back(*m);
    return n;
}

}  // namespace

// Data arrival only appends; a message is taken once its separator is there,
// and what follows loses its leading blanks.
TEST(Empfangspuffer, NimmtNachrichtenNachDenRegeln) {
    struct Fall {
        std::vector<std::string> lesungen;
        std::vector<std::string> nachrichten;
        std::string rest;
    };
    const std::vector<Fall> faelle{
        {{"Lfdsp3~&~Gpkt1120~&~"}, {"Lfdsp3", "Gpkt1120"}, ""},
        {{"Kart", "e24#1~", "&~"}, {"Karte24#1"}, ""},
        {{"Start~&~   Verte1 2 ~&~"}, {"Start", "Verte1 2 "}, ""},
        {{"  Start~&~"}, {"  Start"}, ""},
        {{"Start~&~   "}, {"Start"}, ""},
        {{"Name:Ann"}, {}, "Name:Ann"},
        {{"~&~~&~x"}, {"", ""}, "x"},
        {{"Ab~&", "~Cd~&~E"}, {"Ab", "Cd"}, "E"},
    };
    for (const Fall& f : faelle) {
        Empfangspuffer p;
        for (const std::string& l : f.lesungen) EXPECT_TRUE(p.anhaengen(l));
        EXPECT_EQ(alleNehmen(p), f.nachrichten) << f.lesungen[0];
        EXPECT_EQ(p.rest(), f.rest) << f.lesungen[0];
    }
}

TEST(Empfangspuffer, EineNachrichtJeAufruf) {
    Empfangspuffer p;
    p.anhaengen("Lfdsp3~&~Gpkt1120~&~");
    EXPECT_EQ(p.kopf(), "Lfdsp");
    EXPECT_EQ(p.nehmen(), "Lfdsp3");
    EXPECT_EQ(p.kopf(), "Gpkt1");
    EXPECT_TRUE(p.vollstaendig());
    EXPECT_EQ(p.nehmen(), "Gpkt1120");
    EXPECT_FALSE(p.vollstaendig());
    EXPECT_FALSE(p.nehmen());
}

TEST(Empfangspuffer, UeberlaufWirdGemeldet) {
    Empfangspuffer ohneTrenner;
    EXPECT_TRUE(ohneTrenner.anhaengen(std::string(net::MaxOhneTrenner, 'x')));
    EXPECT_FALSE(ohneTrenner.anhaengen("x"));

    // Byte by byte, a separator that completes right at the limit still counts.
    Empfangspuffer einzeln;
    for (std::size_t i = 0; i + 2 < net::MaxOhneTrenner; ++i) ASSERT_TRUE(einzeln.anhaengen("y"));
    EXPECT_TRUE(einzeln.anhaengen("~"));
    EXPECT_TRUE(einzeln.anhaengen("&"));
    EXPECT_TRUE(einzeln.anhaengen("~"));
    EXPECT_EQ(einzeln.nehmen()->size(), net::MaxOhneTrenner - 2);

    Empfangspuffer mitTrennern;
    std::string viele;
    while (viele.size() <= net::MaxPuffer) viele += "Ready~&~";
    EXPECT_FALSE(mitTrennern.anhaengen(viele));

    // Taking messages makes room again.
    Empfangspuffer laufend;
    for (int i = 0; i < 100000; ++i) {
        ASSERT_TRUE(laufend.anhaengen("Karte14#2~&~"));
        ASSERT_EQ(laufend.nehmen(), "Karte14#2");
    }
}

TEST(Nachricht, RahmenUndZerlegen) {
    EXPECT_EQ(net::rahmen("Name:", "Jürgen"), "Name:J\xFCrgen~&~");
    EXPECT_EQ(net::rahmen("Chat:", "a~&~b"), "Chat:ab~&~");
    EXPECT_EQ(net::rahmen("Start", ""), "Start~&~");
    const auto n = net::zerlegen("Karte24#1");
    EXPECT_EQ(n.tag, "Karte");
    EXPECT_EQ(n.nutzlast, "24#1");
    EXPECT_EQ(net::zerlegen("Kar").tag, "Kar");
    EXPECT_EQ(net::zerlegen("Kar").nutzlast, "");
}

TEST(Nachricht, ZahlenLesenWieDasAlteVal) {
    const std::vector<std::pair<std::string, int>> faelle{
        {"120", 120}, {"-1", -1}, {" 3 ", 3}, {"1 2", 12}, {"12abc", 12}, {"abc", 0}, {"", 0},
        {"+7", 7}, {"--1", 0}, {"99999999999", 2147483647}, {"3.7", 3}, {"-", 0},
    };
    for (const auto& [text, wert] : faelle) EXPECT_EQ(net::zahlWert(text), wert) << text;
}
