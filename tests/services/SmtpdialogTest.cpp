// The SMTP dialogue without a socket: replies cut from bytes, the lines written,
// the status texts and when a mail counts as delivered.
#include <gtest/gtest.h>

#include "services/Smtpdialog.h"

namespace services {
namespace {

TEST(Antwortleser, SchneidetAntwortenAusDenBytes) {
    struct Fall { std::vector<std::string> stuecke; std::vector<Antwort> erwartet; };
    const std::string lang(Antwortleser::MaxZeile + 10, 'x');
    std::string vieleZeilen;
    for (int i = 0; i < Antwortleser::MaxZeilen + 1; ++i) vieleZeilen += "250-x\r\n";
    const Fall faelle[] = {
        {{"220 mail.example ESMTP\r\n"}, {{220, "mail.example ESMTP"}}},
        {{"22", "0 hi\r", "\n250 ok\r\n"}, {{220, "hi"}, {250, "ok"}}},
        {{"250-mail.example\r\n250-SIZE 100\r\n250 HELP\r\n"}, {{250, "HELP"}}},
        {{"354\n"}, {{354, ""}}},
        {{"hallo\r\n", "25x ok\r\n", "2500\r\n"}, {{0, "hallo"}, {0, "25x ok"}, {0, "2500"}}},
        {{"250 " + lang + "\r\n221 bye\r\n"}, {{0, "zu lange Zeile"}, {221, "bye"}}},
        {{vieleZeilen + "250 ok\r\n"}, {{0, "zu viele Zeilen"}, {250, "ok"}}},
        {{"250 ohne Zeilenende"}, {}},
    };
    for (const Fall& f : faelle) {
        Antwortleser leser;
        std::vector<Antwort> gelesen;
        for (const std::string& s : f.stuecke)
            for (Antwort& a : leser.lesen(s)) gelesen.push_back(std::move(a));
        EXPECT_EQ(gelesen, f.erwartet) << f.stuecke.front().substr(0, 30);
    }
}

TEST(Mail, DatumImmerMitPlusEinsWieImWinterUndImSommer) {
    struct Fall { Zeitpunkt zeit; const char* erwartet; };
    const Fall faelle[] = {
        {{2025, 1, 14, 20, 15, 3}, "Tue, 14 Jan 2025 20:15:03 +0100"},
        {{2025, 7, 6, 9, 5, 0}, "Sun, 06 Jul 2025 09:05:00 +0100"},
        {{2024, 2, 29, 23, 59, 59}, "Thu, 29 Feb 2024 23:59:59 +0100"},
        {{2000, 12, 31, 0, 0, 0}, "Sun, 31 Dec 2000 00:00:00 +0100"},
    };
    for (const Fall& f : faelle) EXPECT_EQ(datumText(f.zeit), f.erwartet);
}

TEST(Mail, KopfRumpfUndPunktzeile) {
    const Mail mail{"anna@example.org", "Anna", "leitung@example.org", "Turnierleitung", "Turnierwertung Anna",
                    "<BEGINN>a\rb\r<ENDE>"};
    EXPECT_EQ(nachrichtBauen(mail, {2025, 1, 14, 20, 15, 3}, "Trumpona 0.1.0"),
              "From: Anna <anna@example.org>\r\n"
              "Date: Tue, 14 Jan 2025 20:15:03 +0100\r\n"
              "X-Mailer: Trumpona 0.1.0\r\n"
              "To: Turnierleitung <leitung@example.org>\r\n"
              "Subject: Turnierwertung Anna\r\n"
              "\r\n"
              "<BEGINN>a\rb\r<ENDE>\r\n"
              ".\r\n");
}

TEST(Mail, NichtsBeendetDieMailVorzeitigOderFuegtKopfzeilenAn) {
    Mail mail{"a@b.de\r\nrcpt to: x@y.de", "A\nBcc: x@y.de", "t@b.de", "T", "Betreff", ".\r\n.punkt\r\nzwei"};
    const auto n = nachrichtBauen(mail, {}, "Trumpona");
    ASSERT_TRUE(n);
    EXPECT_NE(n->find("From: A Bcc: x@y.de <a@b.de  rcpt to: x@y.de>\r\n"), std::string::npos);
    EXPECT_NE(n->find("\r\n\r\n..\r\n..punkt\r\nzwei\r\n.\r\n"), std::string::npos) << *n;

    mail.rumpf = std::string(MaxMailzeile, 'x');
    EXPECT_TRUE(nachrichtBauen(mail, {}, "Trumpona"));
    mail.rumpf += 'x';
    EXPECT_FALSE(nachrichtBauen(mail, {}, "Trumpona"));
}

struct Lauf {
    std::vector<std::string> gesendet;
    std::vector<std::string> status;
    Ausgang ausgang = Ausgang::Laeuft;
};

Lauf durchspielen(Smtpdialog& d, const std::vector<int>& codes) {
    Lauf lauf;
    auto merken = [&](const Smtpdialog::Schritt& s) {
        if (!s.senden.empty()) lauf.gesendet.push_back(s.senden);
        lauf.status.insert(lauf.status.end(), s.status.begin(), s.status.end());
        lauf.ausgang = s.ausgang;
    };
    merken(d.beginnen());
    for (const int c : codes) merken(d.antwort({c, "x"}));
    return lauf;
}

const Mail beispiel{"anna@example.org", "Anna", "leitung@example.org", "Turnierleitung", "Turnierwertung Anna",
                    "<BEGINN>a\r<ENDE>"};

TEST(Smtpdialog, KleingeschriebenerDialogBisNachrichtVerschickt) {
    Smtpdialog d(beispiel, "example.org", {2025, 7, 1, 8, 0, 0}, "Trumpona 0.1.0");
    const Lauf lauf = durchspielen(d, {220, 250, 250, 250, 354});
    EXPECT_FALSE(d.angenommen());
    ASSERT_EQ(lauf.gesendet.size(), 5U);
    EXPECT_EQ(lauf.gesendet[0], "HELO example.org\r\n");
    EXPECT_EQ(lauf.gesendet[1], "mail from: anna@example.org\r\n");
    EXPECT_EQ(lauf.gesendet[2], "rcpt to: leitung@example.org\r\n");
    EXPECT_EQ(lauf.gesendet[3], "data\r\n");
    EXPECT_EQ(lauf.gesendet[4], nachrichtBauen(beispiel, {2025, 7, 1, 8, 0, 0}, "Trumpona 0.1.0"));
    EXPECT_EQ(d.antwort({250, "queued"}).senden, "quit\r\n");
    EXPECT_TRUE(d.angenommen());
    EXPECT_EQ(d.antwort({221, "bye"}).ausgang, Ausgang::Verschickt);
    EXPECT_EQ(d.erledigt(), Smtpdialog::Stufen);
    EXPECT_EQ(lauf.status, (std::vector<std::string>{"Verbinde...", "Verbunden", "Nachricht Senden"}));
}

TEST(Smtpdialog, FehlschlagNenntGrundUndNurDie250ZumPunktZaehlt) {
    struct Fall { std::vector<int> codes; bool zeitAus; bool angenommen; const char* grund; };
    const Fall faelle[] = {
        {{220, 250, 250, 550}, false, false, "SMTP Error! Falscher Rückgabewert"},
        {{554}, false, false, "SMTP Error! Falscher Rückgabewert"},
        {{220, 250, 250, 250, 354, 452}, false, false, "SMTP Error! Falscher Rückgabewert"},
        {{220, 250}, true, false, "SMTP Error! Time out"},
        {{}, true, false, "SMTP Error! Time out"},
        {{220, 250, 250, 250, 354, 250, 0}, false, true, "SMTP Error! Falscher Rückgabewert"},
        {{220, 250, 250, 250, 354, 250}, true, true, "SMTP Error! Time out"},
    };
    for (const Fall& f : faelle) {
        Smtpdialog d(beispiel, "example.org", {}, "Trumpona");
        Lauf lauf = durchspielen(d, f.codes);
        if (f.zeitAus) {
            const auto s = d.zeitUeberschritten();
            lauf.status.insert(lauf.status.end(), s.status.begin(), s.status.end());
            lauf.ausgang = s.ausgang;
        }
        EXPECT_EQ(lauf.ausgang, Ausgang::Fehler);
        EXPECT_EQ(d.angenommen(), f.angenommen);
        EXPECT_EQ(d.grund(), f.grund);
        EXPECT_EQ(lauf.status.back(), "Fehler beim Versenden aufgetreten");
        // Nothing more is written once it failed.
        EXPECT_TRUE(d.antwort({250, "spät"}).senden.empty());
    }
}

TEST(Smtpdialog, ZuLangeMailScheitertVorDemVerbinden) {
    Mail mail = beispiel;
    mail.rumpf = std::string(2000, 'x');
    Smtpdialog d(mail, "example.org", {}, "Trumpona");
    const auto s = d.beginnen();
    EXPECT_EQ(s.ausgang, Ausgang::Fehler);
    EXPECT_EQ(s.status.front(), "Die Ergebnisdatei ist zu lang für eine Mail (höchstens 998 Zeichen in einer Zeile).");
}

}  // namespace
}  // namespace services
