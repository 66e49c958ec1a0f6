#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLabel>
#include <QTest>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <map>

#include "Modal.h"
#include "Bildablage.h"
#include "QtAusgabe.h"
#include "Testdateiwahl.h"
#include "settings/Benutzerspeicher.h"
#include "settings/Optionsdatei.h"
#include "table/Einstellelemente.h"
#include "table/Einstellform.h"
#include "table/Regelvorlagen.h"
#include "table/Tempostufen.h"

namespace {

using settings::Einstellungen;

// Changes a control to another value it offers and returns the value as the file keeps it.
int aendern(QWidget* w) {
    if (auto* c = qobject_cast<QCheckBox*>(w)) {
        c->setChecked(!c->isChecked());
        return c->isChecked() ? -1 : 0;
    }
    if (auto* l = qobject_cast<QComboBox*>(w)) {
        l->setCurrentIndex((l->currentIndex() + 1) % l->count());
        return l->currentData().toInt();
    }
    if (auto* s = qobject_cast<QSpinBox*>(w)) {
        s->setValue(s->value() < s->maximum() ? s->value() + 1 : s->value() - 1);
        return s->value();
    }
    if (auto* g = qobject_cast<table::Wahlgruppe*>(w)) {
        for (auto* k : g->findChildren<QRadioButton*>())
            if (!k->isChecked()) {
                k->setChecked(true);
                break;
            }
        return g->wert();
    }
    if (auto* f = qobject_cast<table::Farbknopf*>(w)) {
        f->setzeWert(f->wert() ^ 0x203040);
        return f->wert();
    }
    ADD_FAILURE() << "unbekanntes Feld " << w->objectName().toStdString();
    return 0;
}

class EinstellformTest : public ::testing::Test {
protected:
    EinstellformTest() { speicher_.zuruecksetzen(optionsdatei_); }

    table::Einstellumgebung umgebung() { return {speicher_, optionsdatei_, wahl_, settings::Lesekontext{}}; }

    QTemporaryDir ordner_;
    QString optionsdatei_ = ordner_.filePath(QStringLiteral("rupalive.ini"));
    settings::Benutzerspeicher speicher_;
    testhilfe::Testdateiwahl wahl_;
};

// Every key read from the options file, and the key the writer uses for it.
std::string schreibschluessel(std::string_view lese) { return lese == "Solo" ? "Pflichtsolo" : std::string(lese); }

TEST_F(EinstellformTest, JedeGeaenderteOptionErreichtDieDateiNurMitSpeichernJn) {
    for (const bool speichern : {true, false}) {
        QFile::remove(optionsdatei_);
        speicher_.zuruecksetzen(optionsdatei_);
        table::Einstellform form(Einstellungen{}, table::Benutzereinstellungen{}, umgebung());
        std::map<std::string, int> erwartet;
        for (const std::string_view schluessel : settings::leseschluessel()) {
            if (schluessel == "Joker") continue;  // "Zweite schlägt Erste" takes it away: see the interlock test
            if (schluessel == "Animation") continue;  // one list with the pace: see the Tempo test
            QWidget* w = form.findChild<QWidget*>(QString::fromUtf8(schluessel.data(), static_cast<qsizetype>(schluessel.size())));
            ASSERT_NE(w, nullptr) << schluessel;
            erwartet[std::string(schluessel)] = aendern(w);
        }
        for (int sitz = 1; sitz <= 4; ++sitz) {
            form.findChild<QLineEdit*>(QStringLiteral("Name%1").arg(sitz))->setText(QStringLiteral("Jörg, %1").arg(sitz));
            erwartet["charakter" + std::to_string(sitz)] =
                aendern(form.findChild<QComboBox*>(QStringLiteral("charakter%1").arg(sitz)));
        }
        form.findChild<QSpinBox*>(QStringLiteral("Serverport"))->setValue(7123);
        form.findChild<QLineEdit*>(QStringLiteral("IRCServer"))->setText(QStringLiteral("irc.example"));
        form.findChild<QCheckBox*>(QStringLiteral("speichern_jn"))->setChecked(speichern);
        form.accept();

        // The foyer keys are kept on every OK, the table's network keys only when saved.
        EXPECT_EQ(speicher_.text(QStringLiteral("IRCServer")), QStringLiteral("irc.example"));
        EXPECT_EQ(speicher_.vorhanden(QStringLiteral("Serverport")), speichern);
        if (!speichern) {
            EXPECT_FALSE(QFile::exists(optionsdatei_));
            continue;
        }
        const settings::Profildatei datei = settings::Profildatei::ausBytes(*settings::dateiBytes(optionsdatei_));
        for (const auto& [schluessel, wert] : erwartet)
            EXPECT_EQ(settings::profilZahl(datei, "Optionen", schreibschluessel(schluessel), 4711), wert) << schluessel;
        EXPECT_EQ(settings::profilText(datei, "Optionen", "Name3", "", 254), "Jörg, 3");
        // The changed values differ from the defaults, so a value the dialog lost would show.
        EXPECT_NE(settings::EinstellungenLesen(optionsdatei_, {}), Einstellungen{});
    }
}

// With the Joker the first Dolle is always high: choosing "Zweite schlägt Erste"
// takes the Joker away and greys it, "Erste schlägt Zweite" gives it back.
TEST_F(EinstellformTest, ZweiteSchlaegtErsteNimmtDenJoker) {
    Einstellungen e;
    e.regeln.joker = -1;
    table::Einstellform form(e, {}, umgebung());
    auto* joker = form.findChild<QCheckBox*>(QStringLiteral("Joker"));
    auto* hinweis = form.findChild<QLabel*>(QStringLiteral("jokerhinweis"));
    EXPECT_EQ(hinweis->text(), QStringLiteral("Beim Spiel mit Joker gilt immer: Erste Dolle ist hoch!"));
    std::map<QString, QRadioButton*> dollen;
    for (auto* k : form.findChild<QWidget*>(QStringLiteral("HerzZehn"))->findChildren<QRadioButton*>()) dollen[k->text()] = k;
    const QString zweite = QStringLiteral("Zweite schlägt Erste"), erste = QStringLiteral("Erste schlägt Zweite");
    const struct {
        QString dollen;      // the radio button clicked, or empty for the joker box
        int herzZehn, joker;  // as the dialog hands them on
        bool jokerWaehlbar;
    } schritte[] = {{{}, -1, -1, true}, {zweite, 0, 0, false}, {erste, -1, -1, true},
                    {{}, -1, 0, true},  {zweite, 0, 0, false}, {erste, -1, 0, true}};
    for (const auto& s : schritte) {
        if (s.dollen.isEmpty()) joker->setChecked(s.joker != 0);
        else dollen.at(s.dollen)->click();
        const std::string schritt = s.dollen.isEmpty() ? "Joker" : s.dollen.toStdString();
        EXPECT_EQ(form.einstellungen().regeln.herzZehn, s.herzZehn) << schritt;
        EXPECT_EQ(form.einstellungen().regeln.joker, s.joker) << schritt;
        EXPECT_EQ(joker->isChecked(), s.joker != 0) << schritt;
        EXPECT_EQ(joker->isEnabled(), s.jokerWaehlbar) << schritt;
        EXPECT_EQ(hinweis->isEnabled(), s.joker != 0) << schritt;
    }
    // Handed both, the dialog shows the Dollen rule and the Joker off.
    e.regeln.herzZehn = 0;
    table::Einstellform beide(e, {}, umgebung());
    EXPECT_EQ(beide.einstellungen().regeln.herzZehn, 0);
    EXPECT_EQ(beide.einstellungen().regeln.joker, 0);
    EXPECT_FALSE(beide.findChild<QCheckBox*>(QStringLiteral("Joker"))->isEnabled());
}

TEST_F(EinstellformTest, ExportUndImportStellenAlleWerteWiederHer) {
    table::Einstellform form(Einstellungen{}, {}, umgebung());
    for (const std::string_view schluessel : settings::leseschluessel()) {
        if (schluessel == "Animation") {  // "Aus" in the pace list
            form.findChild<QComboBox*>(QStringLiteral("Tempo"))->setCurrentIndex(0);
            continue;
        }
        aendern(form.findChild<QWidget*>(QString::fromUtf8(schluessel.data(), static_cast<qsizetype>(schluessel.size()))));
    }
    for (int sitz = 1; sitz <= 4; ++sitz) {
        form.findChild<QLineEdit*>(QStringLiteral("Name%1").arg(sitz))->setText(QStringLiteral("Mäx, der %1.").arg(sitz));  // blanks around a value are not kept by the format
        aendern(form.findChild<QComboBox*>(QStringLiteral("charakter%1").arg(sitz)));
    }
    const Einstellungen geaendert = form.einstellungen();
    ASSERT_NE(geaendert, Einstellungen{});

    const QString datei = ordner_.filePath(QStringLiteral("meine.dki"));
    wahl_.antworten = {datei, datei};
    form.exportieren();
    form.setzeEinstellungen(Einstellungen{});
    form.importieren();

    // The compulsory solo is written as "Pflichtsolo" but read as "Solo": it keeps the
    // value the dialog held before the import.
    Einstellungen erwartet = geaendert;
    erwartet.regeln.solo = Einstellungen{}.regeln.solo;
    EXPECT_EQ(form.einstellungen(), erwartet);

    ASSERT_EQ(wahl_.fragen.size(), 2u);
    const struct {
        bool speichern;
        const char* titel;
    } dialoge[] = {{true, "Einstellungen speichern"}, {false, "Einstellungen einlesen"}};
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_EQ(wahl_.gespeichert[i], dialoge[i].speichern);
        EXPECT_EQ(wahl_.fragen[i].titel, QString::fromUtf8(dialoge[i].titel));
        EXPECT_EQ(wahl_.fragen[i].filter, "Doppelkopf-INI-Datei (*.dki)|*.dki|Alle Dateien(*.*)|*.*");
        EXPECT_EQ(wahl_.fragen[i].endung, "dki");
    }
    // The folder is remembered for the next dialog.
    EXPECT_EQ(wahl_.fragen[1].ordner, ordner_.path());
}

TEST_F(EinstellformTest, FremdeUndVeralteteDateienWerdenAbgelehnt) {
    const struct { const char* inhalt; const char* meldung; } faelle[] = {
        {"[Optionen]\r\nProgramm=Fremdkopf\r\nVersionsnr=200\r\nName1=Fremd\r\n", "Keine gültige Doppelkopf-INI-Datei!"},
        {"[Optionen]\r\nProgramm=Trumpona\r\nVersionsnr=199\r\nName1=Alt\r\n",
         "Keine gültige Doppelkopf-INI-Datei oder Datei veraltet! "},
        {"\x89PNG\r\n\x1a\n\0\0\0binary", "Keine gültige Doppelkopf-INI-Datei!"},
    };
    for (const auto& f : faelle) {
        Einstellungen e;
        e.namen[0] = "Ich";
        table::Einstellform form(e, {}, umgebung());
        const QString pfad = ordner_.filePath(QStringLiteral("fremd.dki"));
        QFile datei(pfad);
        ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
        datei.write(f.inhalt, static_cast<qint64>(std::string_view(f.inhalt).size()));
        datei.close();
        wahl_.antworten = {pfad};
        QString gezeigt;
        testhilfe::meldungBeantworten(QMessageBox::Ok, &gezeigt);
        form.importieren();
        EXPECT_EQ(gezeigt, QString::fromUtf8(f.meldung));
        EXPECT_EQ(form.einstellungen(), e);
    }
}

TEST_F(EinstellformTest, ZuruecksetzenFragtUndLoeschtAlles) {
    for (const QMessageBox::StandardButton antwort : {QMessageBox::No, QMessageBox::Yes}) {
        ASSERT_TRUE(settings::EinstellungenSchreiben(optionsdatei_, Einstellungen{}));
        speicher_.setzeText(QStringLiteral("Warnung"), QStringLiteral("True"));
        table::Einstellform form(Einstellungen{}, {}, umgebung());
        QSignalSpy beendet(&form, &table::Einstellform::zurueckgesetzt);
        QString frage;
        testhilfe::meldungBeantworten(antwort, &frage);
        form.findChild<QPushButton*>(QStringLiteral("cmdreset"))->click();
        EXPECT_EQ(frage, QStringLiteral("Möchten Sie alle Einstellungen zurücksetzen?\nWenn Sie mit Ja antworten, wird "
                                        "nach dem Reset das Programm beendet und muß neu gestartet werden!"));
        const bool ja = antwort == QMessageBox::Yes;
        EXPECT_EQ(beendet.count(), ja ? 1 : 0);
        EXPECT_EQ(QFile::exists(optionsdatei_), !ja);
        EXPECT_EQ(speicher_.vorhanden(QStringLiteral("Warnung")), !ja);
    }
}

TEST_F(EinstellformTest, ReiterUndBeschriftungen) {
    Einstellungen e;
    e.namen = {"Ich", "Anna", "Bert", "Cleo"};
    table::Einstellform form(e, {}, umgebung());
    QStringList reiter;
    for (int i = 0; i < form.reiter()->count(); ++i) reiter << form.reiter()->tabText(i);
    EXPECT_EQ(reiter, (QStringList{QStringLiteral("Regeln"), QStringLiteral("Sonderpunkte"), QStringLiteral("Spieler"),
                                   QStringLiteral("Anzeige"), QStringLiteral("Sound"), QStringLiteral("Netzwerk")}));
    EXPECT_EQ(form.objectName(), QStringLiteral("einstellform"));

    const struct { const char* schluessel; const char* text; } schalter[] = {
        {"Joker", "Spiel mit Joker"}, {"Solis", "Solospiele zulässig"}, {"Solo", "Pflichtsolo"},
        {"Vh_Solo", "Solospieler hat Vorhand"}, {"Hh_n_Solo", "Anschließend Hinterhand"},
        {"DaBu_Solo", "auch Damen-Buben-Solo"}, {"Bockrunden", "Doppelt nach kaltem Schlag"},
        {"Neunerwerfen", "Neunerwerfen"}, {"Koenigewerfen", "Königewerfen"}, {"Armut", "Armut"},
        {"Scharfer_Rupa", "Scharfer Doppelkopf (ohne Neunen)"}, {"Zwei_Schweine", "Zwei Schweinchen"},
        {"Schweine_ansagen", "vor Spielbeginn ansagen"}, {"Schweine_b_TrSolo", "auch bei Karo-Solo"},
        {"Supersau", "Supersau"}, {"Stille_befoerderung", "Stille Beförderung zur Supersau"},
        {"Sopu_Fuchs", "Fuchs letzter Stich"}, {"Sopu_doppelfuchs", "Doppelfuchs"}, {"Sopu_karlchen", "Karlchen"},
        {"Sopu_doppelkarlchen", "Doppelkarlchen"}, {"Sopu_rupa_b_Solo", "Doppelkopf bei Solospiel"},
        {"Sopu_Dollenschlag", "Dullenschlag"}, {"Sopu_Herzstich", "Herzstich"}, {"Vollbild", "Vollbild"},
    };
    for (const auto& s : schalter) {
        auto* c = form.findChild<QCheckBox*>(QString::fromUtf8(s.schluessel));
        ASSERT_NE(c, nullptr) << s.schluessel;
        EXPECT_EQ(c->text(), QString::fromUtf8(s.text)) << s.schluessel;
    }

    auto eintraege = [&](const char* name) {
        QStringList texte;
        auto* l = form.findChild<QComboBox*>(QString::fromUtf8(name));
        for (int i = 0; i < l->count(); ++i) texte << l->itemText(i);
        return texte;
    };
    const QStringList fristen{QStringLiteral("unzulässig"), QStringLiteral("bis einschließlich 1. Stich"),
                              QStringLiteral("bis einschließlich 2. Stich"), QStringLiteral("bis einschließlich 3. Stich"),
                              QStringLiteral("bis einschließlich 4. Stich"), QStringLiteral("bis einschließlich 5. Stich")};
    EXPECT_EQ(eintraege("Kontra"), fristen);
    EXPECT_EQ(eintraege("Limit"), fristen);
    EXPECT_EQ(eintraege("Vorhand"), (QStringList{QStringLiteral("wird durch Zufall bestimmt"), QStringLiteral("Anwender"),
                                                QStringLiteral("Anna"), QStringLiteral("Bert"), QStringLiteral("Cleo")}));
    // A renamed seat is offered under its new name at once.
    form.findChild<QLineEdit*>(QStringLiteral("Name3"))->setText(QStringLiteral("Berta"));
    EXPECT_EQ(eintraege("Vorhand")[3], QStringLiteral("Berta"));

    QStringList dollen;
    for (auto* k : form.findChild<QWidget*>(QStringLiteral("HerzZehn"))->findChildren<QRadioButton*>()) dollen << k->text();
    EXPECT_EQ(dollen, (QStringList{QStringLiteral("Zweite schlägt Erste"), QStringLiteral("Erste schlägt Zweite")}));
}

// Values the dialog does not offer survive opening and confirming it.
TEST_F(EinstellformTest, UnbekannteWerteBleibenErhalten) {
    Einstellungen e;
    e.regeln.kontra = 7;
    e.kartenbild = 6;
    e.charakter[2] = 9;
    e.einsammeln = 1;  // any non-zero value waits for a click
    table::Einstellform form(e, {}, umgebung());
    const Einstellungen zurueck = form.einstellungen();
    EXPECT_EQ(zurueck.regeln.kontra, 7);
    EXPECT_EQ(zurueck.kartenbild, 6);
    EXPECT_EQ(zurueck.charakter[2], 9);
    EXPECT_EQ(zurueck.einsammeln, -1);
}

TEST_F(EinstellformTest, BilderDerReiter) {
    Einstellungen e;
    e.namen = {"Ich", "Anna", "Bert", "Cleo"};
    e.regeln.joker = -1;
    table::Einstellform form(e, table::benutzereinstellungenLesen(speicher_), umgebung());
    form.show();
    // It fits the smallest screen the program is made for (800 x 600), frame included.
    EXPECT_LE(form.sizeHint().width(), 790);
    EXPECT_LE(form.sizeHint().height(), 565);
    for (int i = 0; i < form.reiter()->count(); ++i) {
        form.reiter()->setCurrentIndex(i);
        // Nothing is cut off: the dialog's size fits every tab.
        EXPECT_GE(form.reiter()->currentWidget()->width(), form.reiter()->currentWidget()->minimumSizeHint().width());
        EXPECT_GE(form.reiter()->currentWidget()->height(), form.reiter()->currentWidget()->minimumSizeHint().height());
        testhilfe::bildAblegen(form, QStringLiteral("einstellungen-%1").arg(i + 1));
    }
}

TEST(Dateiwahl, FilterUndDialog) {
    const struct { const char* klassisch; const char* qt; } filter[] = {
        {"Doppelkopf-INI-Datei (*.dki)|*.dki|Alle Dateien(*.*)|*.*", "Doppelkopf-INI-Datei (*.dki *.DKI);;Alle Dateien(*.*)"},
        {"Doppelkopf-Partie (*.DKP)|*.dkp|Alle Dateien (*.*)|*.*", "Doppelkopf-Partie (*.DKP *.dkp);;Alle Dateien (*.*)"},
    };
    for (const auto& f : filter) EXPECT_EQ(table::qtFilter(f.klassisch), QString::fromUtf8(f.qt));

    // The real dialog carries the title, the filters and the extension; cancelled it gives nothing.
    table::Dateidialoge dialoge;
    QString titel;
    QStringList filterListe;
    QString endung;
    testhilfe::modalBeantworten([&](QWidget* w) {
        auto* d = qobject_cast<QFileDialog*>(w);
        if (!d) return;
        titel = d->windowTitle();
        filterListe = d->nameFilters();
        endung = d->defaultSuffix();
        d->reject();
    });
    const QString gewaehlt = dialoge.speichern(
        nullptr, {QStringLiteral("Doppelkopf-Partie speichern"), QDir::tempPath(),
                  "Doppelkopf-Partie (*.dkp)|*.dkp|Alle Dateien(*.*)|*.*", "dkp"});
    EXPECT_TRUE(gewaehlt.isEmpty());
    EXPECT_EQ(titel, QStringLiteral("Doppelkopf-Partie speichern"));
    EXPECT_EQ(filterListe, (QStringList{QStringLiteral("Doppelkopf-Partie (*.dkp *.DKP)"), QStringLiteral("Alle Dateien(*.*)")}));
    EXPECT_EQ(endung, QStringLiteral("dkp"));
}

// Files named in either case are offered, whichever case the filter text uses.
TEST(Dateiwahl, EndungInJederSchreibweise) {
    QTemporaryDir ordner;
    for (const char* name : {"klein.dkp", "GROSS.DKP", "anders.txt"}) {
        QFile f(ordner.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    }
    for (const bool laden : {true, false}) {
        QStringList gezeigt;
        testhilfe::modalBeantworten([&](QWidget* w) {
            auto* d = qobject_cast<QFileDialog*>(w);
            if (!d) return;
            auto* modell = d->findChild<QFileSystemModel*>();
            const QModelIndex wurzel = modell->index(ordner.path());
            if (!QTest::qWaitFor([&] { return modell->rowCount(wurzel) > 0; }, 5000)) return d->reject();
            // Let the proxy settle: a file the filter refuses is hidden, not removed.
            QTest::qWait(50);
            for (int i = 0; i < modell->rowCount(wurzel); ++i) {
                const QModelIndex index = modell->index(i, 0, wurzel);
                if (!(modell->flags(index) & Qt::ItemIsEnabled)) continue;
                gezeigt << modell->fileName(index);
            }
            d->reject();
        });
        table::Dateidialoge dialoge;
        const table::Dateifrage frage{QStringLiteral("Titel"), ordner.path(),
                                      laden ? "Doppelkopf-Partie (*.DKP)|*.dkp|Alle Dateien (*.*)|*.*"
                                            : "Doppelkopf-Partie (*.dkp)|*.dkp|Alle Dateien(*.*)|*.*",
                                      "dkp"};
        laden ? dialoge.oeffnen(nullptr, frage) : dialoge.speichern(nullptr, frage);
        gezeigt.sort();
        EXPECT_EQ(gezeigt, (QStringList{QStringLiteral("GROSS.DKP"), QStringLiteral("klein.dkp")})) << laden;
    }
}

}  // namespace

namespace {

// Chooses a preset as a person does: from the list.
void vorlageWaehlen(table::Einstellform& form, const QString& name) {
    auto* liste = form.findChild<QComboBox*>(QStringLiteral("regelvorlage"));
    const int i = liste->findText(name);
    ASSERT_GE(i, 0) << name.toStdString();
    liste->setCurrentIndex(i);
    emit liste->activated(i);
}

QString gezeigteVorlage(table::Einstellform& form) {
    return form.findChild<QComboBox*>(QStringLiteral("regelvorlage"))->currentText();
}

}  // namespace

TEST_F(EinstellformTest, RegelvorlagenSetzenRegelnUndWerdenErkannt) {
    Einstellungen e;
    e.regeln.joker = -1;  // a preset with "Zweite schlägt Erste" takes the Joker away
    table::Einstellform form(e, {}, umgebung());
    EXPECT_EQ(gezeigteVorlage(form), QStringLiteral("(eigene Auswahl)"));

    for (const table::Regelvorlage& v : table::festeVorlagen()) {
        vorlageWaehlen(form, QString::fromStdString(v.name));
        EXPECT_TRUE(table::passt(form.einstellungen().regeln, v)) << v.name;
        EXPECT_EQ(gezeigteVorlage(form), QString::fromStdString(v.name));
        // Names and display options stay as they were.
        EXPECT_EQ(form.einstellungen().namen, e.namen);
        EXPECT_EQ(form.einstellungen().kartenbild, e.kartenbild);
    }
    EXPECT_TRUE(form.findChild<table::Wahlgruppe*>(QStringLiteral("HerzZehn"))->isEnabled());

    // Turnierregeln: the second Dolle beats the first, so the Joker is off and greyed; with
    // "Erste schlägt Zweite" it can be ticked again, which leaves the preset.
    vorlageWaehlen(form, QStringLiteral("Turnierregeln"));
    EXPECT_EQ(form.einstellungen().regeln.herzZehn, 0);
    auto* joker = form.findChild<QCheckBox*>(QStringLiteral("Joker"));
    EXPECT_FALSE(joker->isEnabled());
    EXPECT_FALSE(joker->isChecked());
    for (auto* k : form.findChild<QWidget*>(QStringLiteral("HerzZehn"))->findChildren<QRadioButton*>())
        if (k->text() == QStringLiteral("Erste schlägt Zweite")) k->click();
    joker->setChecked(true);
    EXPECT_EQ(form.einstellungen().regeln.herzZehn, -1);
    EXPECT_EQ(form.einstellungen().regeln.joker, -1);
    EXPECT_EQ(gezeigteVorlage(form), QStringLiteral("(eigene Auswahl)"));

    // Kept as house rules, they are offered and recognised from then on, in a new dialog too.
    form.findChild<QPushButton*>(QStringLiteral("hausregeln_merken"))->click();
    EXPECT_EQ(gezeigteVorlage(form), QStringLiteral("Hausregeln (eigene)"));
    const engine::RegelOptionen eigene = form.einstellungen().regeln;
    table::Einstellform neu(Einstellungen{}, {}, umgebung());
    vorlageWaehlen(neu, QStringLiteral("Hausregeln (eigene)"));
    EXPECT_EQ(neu.einstellungen().regeln, eigene);
    EXPECT_EQ(neu.einstellungen().regeln.joker, -1);
    EXPECT_TRUE(neu.findChild<QCheckBox*>(QStringLiteral("Joker"))->isEnabled());
}

TEST(Regelvorlagen, HausregelnAlsText) {
    engine::RegelOptionen r;
    r.kontra = 3;
    r.joker = -1;
    const table::Regelvorlage v = table::hausregeln(r);
    EXPECT_EQ(table::anwenden({}, table::hausregelnAusText(table::hausregelnText(v))), r);
    // What cannot be read is left out; the rest still counts.
    const table::Regelvorlage kaputt = table::hausregelnAusText("Kontra=2;Unbekannt=1;Limit=x;;=;Joker=-1");
    EXPECT_EQ(kaputt.werte, (std::vector<std::pair<std::string, int>>{{"Kontra", 2}, {"Joker", -1}}));
    // A stored 1 is no switched-on rule, as in the game.
    engine::RegelOptionen eins;
    eins.joker = 1;
    EXPECT_FALSE(table::passt(eins, table::hausregeln(r)));
    EXPECT_TRUE(table::passt(eins, table::hausregeln(engine::RegelOptionen{})));
}

// "Tempo": off is "Animation" 0; a pace is kept in the per-user store, and survives switching off.
TEST_F(EinstellformTest, TempoIstAnimationUndGeschwindigkeit) {
    table::Benutzereinstellungen b;
    b.tempo = 3;
    table::Einstellform form(Einstellungen{}, b, umgebung());
    auto* tempo = form.findChild<QComboBox*>(QStringLiteral("Tempo"));
    QStringList stufen;
    for (int i = 0; i < tempo->count(); ++i) stufen << tempo->itemText(i);
    EXPECT_EQ(stufen, (QStringList{QStringLiteral("Aus (ohne Kartenbewegung)"), QStringLiteral("Schnell"),
                                   QStringLiteral("Normal"), QStringLiteral("Langsam")}));
    EXPECT_EQ(tempo->currentText(), QStringLiteral("Langsam"));
    const struct { int index; int animation; int gespeichert; } zeilen[] = {{0, 0, 3}, {1, -1, 1}, {2, -1, 2}, {0, 0, 2}};
    for (const auto& z : zeilen) {
        tempo->setCurrentIndex(z.index);
        EXPECT_EQ(form.einstellungen().animation, z.animation) << z.index;
        EXPECT_EQ(form.benutzer().tempo, z.gespeichert) << z.index;
    }
    form.accept();
    EXPECT_EQ(table::benutzereinstellungenLesen(speicher_).tempo, 2);
    Einstellungen aus;
    aus.animation = 0;
    table::Einstellform wieder(aus, table::benutzereinstellungenLesen(speicher_), umgebung());
    EXPECT_EQ(wieder.findChild<QComboBox*>(QStringLiteral("Tempo"))->currentIndex(), 0);
    // Fast is never slower than the table always was.
    const table::Tempo normal = table::tempoFuer(table::TempoNormal), schnell = table::tempoFuer(table::TempoSchnell);
    EXPECT_LE(schnell.karte, 550);
    EXPECT_LE(schnell.stich, 1100);
    EXPECT_LE(schnell.flug, 260);
    EXPECT_LE(schnell.einsammeln, 320);
    EXPECT_LT(normal.karte, table::tempoFuer(table::TempoLangsam).karte);
    EXPECT_EQ(table::tempoFuer(table::TempoAus).flug, 0);
}
