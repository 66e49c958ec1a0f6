#include <gtest/gtest.h>

#include <algorithm>

#include "foyer/Foyersitzung.h"

namespace foyer {
namespace {

using Art = Ereignis::Art;

// A session logged in as "Anna", its login lines already taken.
class Sitzung : public ::testing::Test {
protected:
    void SetUp() override {
        s.anmelden("Anna", "ABCDE");
        s.ausgangNehmen();
        server(":irc.test 001 Anna :Welcome");
        s.ausgangNehmen();
        s.ereignisseNehmen();
    }
    void server(const std::string& zeile, std::int64_t jetzt = 0) { s.empfangen(zeile + "\r\n", jetzt); }
    std::vector<std::string> gesendet() { return s.ausgangNehmen(); }
    bool gesendetWurde(const std::string& zeile) {
        const auto alle = gesendet();
        return std::find(alle.begin(), alle.end(), zeile + "\r") != alle.end();
    }
    std::vector<Ereignis> ereignisse(Art art) {
        std::vector<Ereignis> passend;
        for (auto& e : s.ereignisseNehmen())
            if (e.art == art) passend.push_back(e);
        return passend;
    }
    void liste(const std::string& kanal, const std::string& namen) {
        server(":irc.test 353 Anna = " + kanal + " :" + namen);
        server(":irc.test 366 Anna " + kanal + " :End of NAMES list");
    }
    void ansage(const std::string& von, const std::string& text) {
        server(":" + von + "!~X@h PRIVMSG +Foyer :" + text);
    }

    Foyersitzung s;
};

TEST(Anmeldeantwort, AnnahmeUndAblehnungDesNamens) {
    struct Fall { std::string antwort; Anmeldestand stand; std::vector<std::string> danach; };
    const Fall faelle[] = {
        {":irc.test 462 * :Connection already registered", Anmeldestand::Wartet, {}},
        {":irc.test 001 Otto :Welcome", Anmeldestand::Wartet, {}},
        {":irc.test 001 Fuenfzehnzei :Welcome", Anmeldestand::Angemeldet, {"list\r", "JOIN +Foyer\r", "Time\r"}},
        {":irc.test 433 * Fuenfzehnzei :Nickname already in use", Anmeldestand::Abgelehnt, {}},
        {":irc.test 432 * Fuenfzehnzei :Erroneous nickname", Anmeldestand::Abgelehnt, {}},
        {"PING :abc", Anmeldestand::Wartet, {"PONG :abc\r"}},
    };
    for (const auto& f : faelle) {
        Foyersitzung s;
        s.anmelden("Fuenfzehnzeich1", "ABCDE");
        EXPECT_EQ(s.ausgangNehmen().back(), "NICK Fuenfzehnzei\r");
        s.empfangen(f.antwort + "\r\n", 0);
        EXPECT_EQ(s.stand(), f.stand) << f.antwort;
        EXPECT_EQ(s.ausgangNehmen(), f.danach) << f.antwort;
        const auto e = s.ereignisseNehmen();
        if (f.stand == Anmeldestand::Abgelehnt) {
            ASSERT_EQ(e.size(), 1u);
            EXPECT_EQ(e[0].text,
                      "Es ist bereits ein Spieler mit dem Namen Fuenfzehnzeich1 angemeldet oder Ihr Name ist nach einem "
                      "Verbindungsabbruch noch nicht freigegeben!\n\nBitte wählen Sie einen anderen Namen oder warten Sie "
                      "einen Augenblick.");
        }
    }
}

TEST_F(Sitzung, MitgliederlistenFolgenNamesJoinPartNickUndQuit) {
    liste("+Foyer", "Anna @Bert +Carl");
    liste("+Tisch_2", "Bert");
    EXPECT_EQ(s.spieler(), (std::vector<Foyerspieler>{{"Anna", 0}, {"Bert", 2}, {"Carl", 0}}));
    server(":Dora!~D@h JOIN :+Foyer");
    server(":Carl!~C@h PART +Foyer :");
    server(":Bert!~B@h NICK :Berta");
    EXPECT_EQ(s.spieler(), (std::vector<Foyerspieler>{{"Anna", 0}, {"Berta", 2}, {"Dora", 0}}));
    s.ereignisseNehmen();
    server(":Dora!~D@h QUIT :weg");
    const auto system = ereignisse(Art::Systemzeile);
    ASSERT_EQ(system.size(), 1u);
    EXPECT_EQ(system[0].text, "<SYSTEM> Dora ist nicht mehr angemeldet!");
    // A new list replaces the old one, also when it arrives in several lines.
    server(":irc.test 353 Anna = +Foyer :Anna");
    server(":irc.test 353 Anna = +Foyer :Erik");
    server(":irc.test 366 Anna +Foyer :End");
    EXPECT_EQ(s.spieler(), (std::vector<Foyerspieler>{{"Anna", 0}, {"Erik", 0}}));
}

TEST_F(Sitzung, JoinOderTischwortFordertDieListenNeuAn) {
    for (int i = 0; i < 15; ++i) s.tick();
    EXPECT_EQ(s.intervallMs(), 800);
    EXPECT_EQ(gesendet().back(), "NAMES +Foyer\r");
    server(":Bert!~B@h JOIN :+Foyer");
    EXPECT_EQ(s.intervallMs(), 500);
    EXPECT_TRUE(gesendetWurde("NAMES +Foyer"));
    for (int i = 0; i < 10; ++i) s.tick();
    EXPECT_EQ(s.intervallMs(), 500);
    s.tick();
    EXPECT_EQ(s.intervallMs(), 800);
}

TEST_F(Sitzung, ChatImFoyerUndPrivatUndDieAutomatischeAntwort) {
    server(":Bert!~B@h PRIVMSG +Foyer :Hallo \x02zusammen");
    server(":Bert!~B@h PRIVMSG Anna :\x01VERSION\x01");
    EXPECT_TRUE(gesendet().empty());  // CTCP gets no answer
    const auto foyer = ereignisse(Art::FoyerChat);
    ASSERT_EQ(foyer.size(), 1u);
    EXPECT_EQ(foyer[0].von, "Bert");
    EXPECT_EQ(foyer[0].text, "Hallo zusammen");

    s.setzeNichtErreichbar(true);
    server(":Bert!~B@h PRIVMSG Anna :Spielst du?", 1000);
    server(":Bert!~B@h PRIVMSG Anna :Hallo?", 2000);
    EXPECT_EQ(gesendet(),
              std::vector<std::string>{"PRIVMSG Bert : *CHATE* Anna_kann_im_Moment_keine_Nachrichten_von_Dir_empfangen!\r"});
    EXPECT_EQ(ereignisse(Art::PrivatChat).size(), 2u);
    server(":Bert!~B@h PRIVMSG Anna :Und jetzt?", 62'000);
    EXPECT_EQ(gesendet().size(), 1u);
    // An automatic answer is shown, never answered.
    server(":Bert!~B@h PRIVMSG Anna : *CHATE* Bert_kann_im_Moment_keine_Nachrichten_von_Dir_empfangen!", 200'000);
    EXPECT_TRUE(gesendet().empty());
    const auto system = ereignisse(Art::Systemzeile);
    ASSERT_EQ(system.size(), 1u);
    EXPECT_EQ(system[0].partner, "Bert");
    EXPECT_EQ(system[0].text, "<SYSTEM> Bert kann im Moment keine Nachrichten von Dir empfangen!");

    s.privatSenden("Gast", "Bist du da?\rQUIT");
    EXPECT_EQ(gesendet(), std::vector<std::string>{"PRIVMSG Gast :Bist du da?QUIT\r"});
    server(":irc.test 401 Anna Gast :No such nick or channel name");
    EXPECT_EQ(ereignisse(Art::Systemzeile)[0].text, "<SYSTEM> Gast ist nicht mehr angemeldet!");
}

TEST_F(Sitzung, TischeNurVonBesitzernDieInIhremKanalSitzen) {
    liste("+Foyer", "Anna Bert Carl");
    ansage("Bert", "*TINFO* 2 10.0.0.5 7001 3 48 Karten");
    EXPECT_TRUE(s.tische().empty());  // not confirmed until the channel's list says so
    EXPECT_TRUE(gesendetWurde("NAMES +Foyer,+Tisch_2"));
    liste("+Tisch_2", "Bert");
    ASSERT_EQ(s.tische().size(), 1u);
    EXPECT_EQ(s.tische()[0].besitzer, "Bert");
    EXPECT_EQ(s.tische()[0].angebot.port, 7001);

    // Forgeries and rubbish change nothing.
    ansage("Carl", "*TINFO* 2 10.0.0.6 9999 3 meins");
    ansage("Carl", "*TINFO* 5 10.0.0.6 99999 3 falscher Port");
    ansage("Bert", "*TINFO* 2 10.0.0.5 7001");
    ansage("Carl", "*TRET* 2");
    liste("+Tisch_5", "Bert");
    ASSERT_EQ(s.tische().size(), 1u);
    EXPECT_EQ(s.tische()[0].angebot.adresse, "10.0.0.5");
    EXPECT_TRUE(ereignisse(Art::FoyerChat).empty());

    ansage("Bert", "*TINFO* 2 10.0.0.5 7001 1 48 Karten");
    server(":Carl!~C@h JOIN :+Tisch_2");
    EXPECT_EQ(s.tische()[0].angebot.frei, 1);
    EXPECT_EQ(s.tische()[0].sitzend, (std::vector<std::string>{"Bert", "Carl"}));
    ansage("Bert", "*TRET* 2");
    EXPECT_TRUE(s.tische().empty());
    // A table whose owner left its channel is gone.
    ansage("Carl", "*TINFO* 2 10.0.0.6 7002 3 neu");
    EXPECT_EQ(s.tische().size(), 1u);
    server(":Carl!~C@h QUIT :weg");
    EXPECT_TRUE(s.tische().empty());
}

TEST_F(Sitzung, EigenerTischNimmtDieErsteFreieNummerUndSagtSichAn) {
    liste("+Tisch_1", "Bert");
    gesendet();
    s.tischEroeffnen("127.0.0.1", 40000, 3, "48 Karten");
    EXPECT_EQ(gesendet(), (std::vector<std::string>{"JOIN +Tisch_2\r", "NAMES +Tisch_2\r"}));
    server(":Anna!~A@h JOIN :+Tisch_2");
    gesendet();
    liste("+Tisch_2", "Carl Anna");  // someone came first
    EXPECT_EQ(gesendet(), (std::vector<std::string>{"PART +Tisch_2\r", "JOIN +Tisch_3\r", "NAMES +Tisch_3\r"}));
    server(":Anna!~A@h JOIN :+Tisch_3");
    liste("+Tisch_3", "Anna");
    EXPECT_TRUE(gesendetWurde("PRIVMSG +Foyer :*TINFO* 3 127.0.0.1 40000 3 48 Karten"));
    EXPECT_EQ(ereignisse(Art::TischEroeffnet).at(0).nummer, 3);
    ASSERT_EQ(s.tische().size(), 1u);
    EXPECT_EQ(s.tische()[0].besitzer, "Anna");

    server(":Dora!~D@h JOIN :+Foyer");
    EXPECT_TRUE(gesendetWurde("PRIVMSG Dora :*TINFO* 3 127.0.0.1 40000 3 48 Karten"));
    s.freiePlaetzeSetzen(2);
    EXPECT_EQ(gesendet(), std::vector<std::string>{"PRIVMSG +Foyer :*TINFO* 3 127.0.0.1 40000 2 48 Karten\r"});
    s.tischSchliessen();
    EXPECT_EQ(gesendet(), (std::vector<std::string>{"PRIVMSG +Foyer :*TRET* 3\r", "PART +Tisch_3\r"}));
}

TEST_F(Sitzung, PlatzNehmenUndVerlassen) {
    s.platzNehmen(4);
    EXPECT_EQ(gesendet(), std::vector<std::string>{"JOIN +Tisch_4\r"});
    s.platzVerlassen();
    EXPECT_EQ(gesendet(), (std::vector<std::string>{"PRIVMSG +Foyer :*TRET* 4\r", "PART +Tisch_4\r"}));
    EXPECT_EQ(s.sitzAn(), 0);
}

TEST_F(Sitzung, UeberflutungBleibtBegrenzt) {
    std::string flut;
    for (int i = 0; i < 3000; ++i) flut += ":irc.test 353 Anna = +Foyer :N" + std::to_string(i) + " M" + std::to_string(i) + "\r\n";
    flut += ":irc.test 366 Anna +Foyer :End\r\n";
    for (int i = 0; i < 500; ++i) flut += ":X" + std::to_string(i) + "!~x@h PRIVMSG +Foyer :*TINFO* " + std::to_string(i + 1) + " h 1 1 x\r\n";
    s.empfangen(flut, 0);
    EXPECT_EQ(s.spieler().size(), MaxMitglieder);
    EXPECT_TRUE(s.tische().empty());
    s.setzeNichtErreichbar(true);
    std::string privat;
    for (int i = 0; i < 1000; ++i) privat += ":Y" + std::to_string(i) + "!~y@h PRIVMSG Anna :hi\r\n";
    s.empfangen(privat, 0);
    EXPECT_EQ(gesendet().size(), 256u + 1u);  // the answers are bounded, then one NAMES refresh
}

}  // namespace
}  // namespace foyer
