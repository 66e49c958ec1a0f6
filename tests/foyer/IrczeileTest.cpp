#include <gtest/gtest.h>

#include "foyer/Anmeldung.h"
#include "foyer/Irczeile.h"
#include "foyer/Kanal.h"
#include "foyer/Steuerwort.h"

namespace foyer {
namespace {

class FesterZufall final : public engine::Zufallsquelle {
public:
    explicit FesterZufall(double wert) : wert_(wert) {}
    double rnd() override { return wert_; }

private:
    double wert_;
};

TEST(Anmeldung, ZeilenInIhrerReihenfolgeMitGekuerztemNick) {
    const auto zeilen = anmeldezeilen("ABCDE", nickAusName("Fuenfzehnzeich1"));
    ASSERT_EQ(zeilen.size(), 3u);
    EXPECT_EQ(zeilen[0], "USER  ABCDE ABCDE ABCDE ABCDE");
    EXPECT_EQ(zeilen[1], "PASS r90317pv");
    EXPECT_EQ(zeilen[2], "NICK Fuenfzehnzei");
    EXPECT_EQ(nickAusName("ÄÖÜäöüßÄÖÜäöüß"), "ÄÖÜäöüßÄÖÜäö");  // characters, not bytes
    EXPECT_EQ(foyerBetreten("+Foyer"), (std::vector<std::string>{"list", "JOIN +Foyer", "Time"}));
}

TEST(Anmeldung, KennungNurAusAbisY) {
    for (const double r : {0.0, 0.5, 0.96, 0.999999}) {
        FesterZufall zufall(r);
        const std::string k = benutzerkennung(zufall);
        ASSERT_EQ(k.size(), 5u);
        for (const char c : k) EXPECT_TRUE(c >= 'A' && c <= 'Y') << k;
    }
    FesterZufall hoch(0.999999);
    EXPECT_EQ(benutzerkennung(hoch), "YYYYY");
}

TEST(Zeilenpuffer, TeiltAnJedemZeilenendeUndVerwirftUeberlangeZeilen) {
    Zeilenpuffer p;
    EXPECT_TRUE(p.anhaengen("PING :a").empty());
    EXPECT_EQ(p.anhaengen("b\r\n:x 001 Anna :hi\rPING c\n\n"),
              (std::vector<std::string>{"PING :ab", ":x 001 Anna :hi", "PING c"}));
    EXPECT_TRUE(p.anhaengen(std::string(600, 'x')).empty());
    EXPECT_TRUE(p.anhaengen(std::string(600, 'y')).empty());
    EXPECT_EQ(p.anhaengen("zz\r\nPING d\r\n"), std::vector<std::string>{"PING d"});
    EXPECT_EQ(p.verworfen(), 1u);
    EXPECT_EQ(p.anhaengen(std::string(MaxZeile, 'a') + "\r").size(), 1u);
}

TEST(Irczeile, LiestPraefixBefehlUndParameter) {
    const auto z = zeileLesen(":Bert!~XYZAB@127.0.0.1 privmsg Anna :hallo  du");
    ASSERT_TRUE(z);
    EXPECT_EQ(z->absender, "Bert");
    EXPECT_EQ(z->befehl, "PRIVMSG");
    EXPECT_EQ(z->parameter, (std::vector<std::string>{"Anna", "hallo  du"}));
    EXPECT_EQ(z->param(5), "");
    EXPECT_FALSE(zeileLesen(":nur.praefix"));
    EXPECT_FALSE(zeileLesen("   "));
    std::string viele = "X";
    for (int i = 0; i < 20; ++i) viele += " p";
    EXPECT_EQ(zeileLesen(viele)->parameter.size(), MaxParameter);
}

TEST(Irczeile, SendezeileEndetMitEinemCrUndLaesstNichtsEinschmuggeln) {
    EXPECT_EQ(sendezeile("NICK Anna"), "NICK Anna\r");
    EXPECT_EQ(sendezeile("PRIVMSG +Foyer :hi\r\nQUIT"), "PRIVMSG +Foyer :hi  QUIT\r");
    const std::string lang = sendezeile("PRIVMSG x :" + std::string(600, '\xC3'));
    EXPECT_LE(lang.size(), MaxZeile + 1);
    EXPECT_EQ(lang.back(), '\r');
}

TEST(Kanal, TischkanaeleTragenKeinBlank) {
    EXPECT_EQ(tischkanal(3), "+Tisch_3");
    EXPECT_EQ(tischnummer("+tisch_12"), 12);
    for (const char* k : {"+Tisch 3", "+Tisch_", "+Tisch_0", "+Tisch_03", "+Tisch_1000", "#Tisch_3", "+Foyer"})
        EXPECT_FALSE(tischnummer(k)) << k;
}

TEST(Steuerwort, TinfoNurMitAllenGueltigenFeldern) {
    const Tischangebot a{3, "192.168.1.20", 7001, 2, "48 Karten, Ende nach 12 Spielen"};
    EXPECT_EQ(tinfoText(a), "*TINFO* 3 192.168.1.20 7001 2 48 Karten, Ende nach 12 Spielen");
    EXPECT_EQ(tinfoLesen(tinfoText(a)), a);
    EXPECT_EQ(tinfoLesen("*TINFO* 1 ::1 65535 0")->adresse, "::1");
    // What is read is what the window shows and the host would write again.
    for (const std::string& regeln : {std::string("\x03" "4,12  Solo"), std::string("\0\0 Solo", 7), std::string("\x01 \x02Solo")}) {
        const auto gelesen = tinfoLesen("*TINFO* 1 h 7001 3 " + regeln);
        ASSERT_TRUE(gelesen) << regeln;
        EXPECT_EQ(gelesen->regeln, "Solo") << regeln;
        EXPECT_EQ(tinfoLesen(tinfoText(*gelesen)), gelesen) << regeln;
    }
    for (const char* kaputt : {"*TINFO*", "*TINFO* 3 host 7001", "*TINFO* 3 host 0 2", "*TINFO* 3 host 65536 2",
                               "*TINFO* 3 host 7001 4", "*TINFO* -3 host 7001 2", "*TINFO* 3 ho;st 7001 2",
                               "*TINFO* 3 -host 7001 2", "*TINFO*3 host 7001 2", "TINFO 3 host 7001 2"})
        EXPECT_FALSE(tinfoLesen(kaputt)) << kaputt;
    EXPECT_EQ(tretLesen("*TRET* 4"), 4);
    EXPECT_FALSE(tretLesen("*TRET* 4 5"));
    EXPECT_FALSE(tretLesen("*TRET* x"));
}

TEST(Steuerwort, ChateNenntDenNickUndWirdLesbarAngezeigt) {
    EXPECT_EQ(chateText("Anna"), " *CHATE* Anna_kann_im_Moment_keine_Nachrichten_von_Dir_empfangen!");
    EXPECT_TRUE(istChate(chateText("Anna")));
    EXPECT_EQ(chateAnzeige(chateText("Anna")), "Anna kann im Moment keine Nachrichten von Dir empfangen!");
    EXPECT_EQ(anzeigetext("\x03" "04,12rot\x02 fett\x01"), "rot fett");
}

}  // namespace
}  // namespace foyer
