#include "Regelseite.h"

#include <QDialogButtonBox>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "Einstelltexte.h"
#include "Qtext.h"
#include "Tischtexte.h"

namespace table {

namespace {

// The rules as this program plays them. The options a player can change are named
// with their captions from the settings dialog; which are on is listed at the top.
constexpr char Regeltext[] = R"(
<h2>Die Karten</h2>
<p>Gespielt wird zu viert mit einem doppelten Blatt von 48 Karten: von jeder Farbe (Kreuz, Pik, Herz, Karo)
je zwei Asse, Zehnen, Könige, Damen, Buben und Neunen. Beim <i>Scharfen Doppelkopf (ohne Neunen)</i> fallen
die Neunen weg und jeder erhält zehn statt zwölf Karten. Beim <i>Spiel mit Joker</i> ersetzt ein Joker die
zweite Karo-Neun.</p>
<p>Die Karten zählen As 11, Zehn 10, König 4, Dame 3, Bube 2, Neun und Joker 0 Augen; im ganzen Spiel sind
es 240 Augen.</p>

<h2>Trumpf und Fehl</h2>
<p>Im Normalspiel sind Trumpf, von oben nach unten: der Joker (wenn mitgespielt wird), die Herz-Zehnen
(„Dollen“), die Damen in der Reihenfolge Kreuz, Pik, Herz, Karo, die Buben in derselben Reihenfolge und dann
Karo-As, Karo-Zehn, Karo-König und Karo-Neun. Alle übrigen Karten sind Fehl; in den Fehlfarben gilt As, Zehn,
König, Neun. Herz hat keine Fehl-Zehn.</p>
<p>Von zwei gleichen Karten gewinnt die zuerst gespielte. Bei den Dollen entscheidet die Einstellung
„Zweite schlägt Erste“ oder „Erste schlägt Zweite“; beim Spiel mit Joker ist immer die erste Dolle hoch.</p>
<p>Wer am Zug ist, muss die ausgespielte Farbe bedienen (Trumpf ist dabei eine eigene Farbe). Wer nicht
bedienen kann, darf beliebig abwerfen oder stechen. Den Stich gewinnt die höchste Karte der ausgespielten
Farbe oder der höchste Trumpf; der Gewinner spielt zum nächsten Stich aus.</p>

<h2>Die Parteien</h2>
<p>Wer eine Kreuz-Dame hat, spielt in der Partei <b>Re</b>, die beiden anderen in der Partei <b>Kontra</b>.
Wer zusammengehört, zeigt sich erst im Lauf des Spiels, etwa wenn eine Kreuz-Dame fällt. Die Parteianzeige
neben den Namen zeigt, was am Tisch bekannt ist. Wer beide Kreuz-Damen hat und nichts ansagt, spielt ein
stilles Solo allein gegen die drei anderen.</p>

<h2>Geben und neu geben</h2>
<p>Jedes Spiel wird neu gemischt. Vorhand, also wer zum ersten Stich ausspielt, wechselt von Spiel zu Spiel
reihum; wer im ersten Spiel Vorhand hat, legt „Vorhand im 1. Spiel“ fest.</p>
<p>Wenn eingeschaltet, wird neu gegeben bei fünf oder mehr Neunen (<i>Neunerwerfen</i>), fünf oder mehr
Königen (<i>Königewerfen</i>) oder höchstens drei Trümpfen (<i>Armut</i>). Geprüft wird in dieser Reihenfolge,
beginnend bei Ihnen. Sie werden gefragt; ein Computerspieler verlangt das neue Geben, es sei denn, er hat
bei zu vielen Neunen oder Königen sieben oder mehr Trümpfe und ein gutes Blatt. Neu gibt derselbe Geber,
Vorhand bleibt.</p>

<h2>Vorbehalte: Solo und Hochzeit</h2>
<p>Vor dem ersten Stich wird reihum ab Vorhand gefragt. Das erste angesagte Solo wird gespielt; ein Solo geht
darum immer einer Hochzeit vor.</p>
<ul>
<li><b>Solo:</b> mit „Solospiele zulässig“ kann jeder ein Solo ansagen und spielt dann allein (als Re) gegen
die drei anderen: Karo-, Herz-, Pik- oder Kreuz-Solo (die Farbe ist Trumpf, mit Dollen, Damen und Buben
darüber), Buben-Solo, Damen-Solo, mit „auch Damen-Buben-Solo“ das Damen-Buben-Solo, oder das Solo ohne
Trumpf. Mit „Solospieler hat Vorhand“ spielt der Solist zum ersten Stich aus, mit „Anschließend
Hinterhand“ ist er im nächsten Spiel Hinterhand.</li>
<li><b>Pflichtsolo:</b> jeder muss in einer Partie ein Solo spielen; das erste Solo eines Spielers ist sein
Pflichtsolo. Endet die Partie nach einer festen Zahl von Spielen und bleiben nicht mehr Spiele übrig als
Spieler ihr Solo noch schulden, muss der erste von ihnen ab Vorhand ein Solo ansagen.</li>
<li><b>Hochzeit:</b> wer beide Kreuz-Damen hat, kann Hochzeit ansagen. Partner wird, wer den ersten Stich der
gewählten Art gewinnt (den ersten Stich, den ersten Fehlstich oder den ersten Trumpfstich), solange es einer
der ersten drei Stiche ist und nicht der Hochzeiter selbst ihn gewinnt. Findet sich so kein Partner, spielt
der Hochzeiter ab dem vierten Stich allein. Bis der Partner feststeht, zählen die anderen drei als Kontra.</li>
</ul>

<h2>Schweine und Supersau</h2>
<p>Mit „Zwei Schweinchen“ sind beide Karo-Asse in einer Hand die höchsten Trümpfe, über den Dollen und mit
dem Joker (von zwei gleich hohen gewinnt die zuerst gespielte). Das gilt im Normalspiel, in der Hochzeit und
im stillen Solo, mit „auch bei Karo-Solo“ auch im Karo-Solo. Die Schweine werden vor der ersten Karte
gezeigt, wenn Sie sie haben oder wenn „vor Spielbeginn ansagen“ eingeschaltet ist.</p>
<p>Mit „Supersau“ wird in einem Farbsolo ohne Schweine, wer beide Asse der Trumpffarbe hat, befördert: jedes
dieser Asse wird beim Ausspielen zur höchsten Karte. Das wird mit „Supersau!“ gemeldet, außer bei „Stille
Beförderung zur Supersau“.</p>

<h2>Ansagen</h2>
<p><b>Re</b> oder <b>Kontra</b> sagt man für die eigene Partei an (der Solist für Re), jede Partei einmal:
vor der ersten Karte oder während eines Stichs bis zu dem Stich, den die Einstellung „Kontra/Re“ nennt.
Jede Ansage verdoppelt den Spielwert (Faktor 1, 2 oder 4).</p>
<p>Ein <b>Limitgebot</b> (keine 90, keine 60, keine 30, kein Stich) darf je Spiel einmal gemacht werden, von
der ersten Karte an bis zu dem Stich, den die Einstellung „Limitgebot“ nennt. Es ändert den Faktor nicht.
Stellt sich heraus, dass ein Spieler in der anderen Partei spielt (etwa als Partner einer Hochzeit), wandert
seine Ansage mit ihm.</p>

<h2>Wertung</h2>
<p>Ohne Limitgebot gewinnt Kontra mit 120 Augen; Re braucht 121. Die Gewinner erhalten einen Punkt, dazu je
einen weiteren für mehr als 150, 180 und 210 Augen und einen für alle Stiche (alle 240 Augen genügen dafür
nicht).</p>
<p>Ein Limitgebot ist erfüllt, wenn die bietende Partei die angesagte Grenze überschreitet (bei „kein Stich“:
alle Stiche). Sie gewinnt dann auch gegen 120 Augen, und die angesagten Stufen zählen doppelt (keine 90: 3,
keine 60: 5, keine 30: 7, kein Stich: 9 Punkte, dazu die darüber hinaus erreichten Stufen). Scheitert das
Gebot, gewinnt die andere Partei mit ihren eigenen Stufen plus den angesagten.</p>
<p>Der Wert wird mit dem Faktor der Ansagen malgenommen; die Sonderpunkte der Gewinner kommen hinzu, die der
Verlierer werden abgezogen. Ergibt sich 0, ist es ein <i>kalter Schlag</i> (mit „Doppelt nach kaltem
Schlag“ zählt dann das nächste Spiel doppelt); ein negatives Ergebnis wird der Verliererpartei gutgeschrieben.
Die Punkte erhält jeder Spieler der gebuchten Partei, ein Solist einmal.</p>

<h2>Sonderpunkte</h2>
<p>Sonderpunkte gibt es nur in Spielen ohne Solisten (Normalspiel, Hochzeit mit Partner); im Solo nur den
Doppelkopf, und nur mit „Doppelkopf bei Solospiel“. Jeder Punkt geht an die Partei des Stichgewinners.</p>
<ul>
<li><b>Doppelkopf</b>: ein Stich mit 40 Augen oder mehr (immer).</li>
<li><b>Fuchs gefangen</b>: ein Karo-As der anderen Partei im Stich, je Fuchs ein Punkt (immer; Schweine sind
keine Füchse).</li>
<li><b>Karlchen</b>: ein Kreuz-Bube gewinnt den letzten Stich; <b>Doppelkarlchen</b>: dabei liegen beide
Kreuz-Buben im Stich.</li>
<li><b>Fuchs letzter Stich</b>: ein Karo-As gewinnt den letzten Stich; <b>Doppelfuchs</b>: dabei liegen beide
Karo-Asse im Stich.</li>
<li><b>Dullenschlag</b>: eine Dolle schlägt die Dolle der anderen Partei; ebenso, wenn der Joker eine Dolle
der anderen Partei fängt.</li>
<li><b>Herzstich</b>: ein Stich aus vier Fehl-Herz-Karten.</li>
</ul>
<p>Schlägt ein Schwein eine Dolle, gibt der Stich keinen Sonderpunkt.</p>

<h2>Ende der Partie</h2>
<p>Eine Partie endet nach einer festen Zahl von Spielen oder sobald ein Spieler die eingestellte Punktzahl
erreicht; das legt „Partieende“ fest. Der Spielzettel hält bis zu 96 Spiele; ab dem 97. Spiel endet die
Partie nach Punkten.</p>
)";

QString jaNein(int wert) { return QString::fromUtf8(wert == -1 ? texte::RegelAn : texte::RegelAus); }

QString frist(int stich) {
    using namespace einstelltext;
    return stich <= 0 ? QString::fromUtf8(Unzulaessig)
                      : QString::fromUtf8(BisEinschliesslich) + QString::number(stich) + QString::fromUtf8(StichEnde);
}

}  // namespace

QString regelnHtml(const engine::RegelOptionen& r) {
    using namespace einstelltext;
    QString html = QStringLiteral("<h1>%1</h1><h2>%2</h2><ul>").arg(t(texte::RegelnTitel), t(texte::IhreRegeln));
    auto zeile = [&](const QString& name, const QString& wert) {
        html += QStringLiteral("<li>%1: <b>%2</b></li>").arg(name.toHtmlEscaped(), wert.toHtmlEscaped());
    };
    zeile(t(Partieende), r.abrOption == 1 ? QStringLiteral("%1 %2 %3").arg(t(BeiUeberschreiten)).arg(r.endeBei).arg(t(Punkten))
                                          : QStringLiteral("%1 %2 %3").arg(t(Nach)).arg(r.endeNach).arg(t(Spielen)));
    zeile(t(KontraRe), frist(r.kontra));
    zeile(t(Limitgebot), frist(r.limit));
    zeile(t(Dollen), t(r.herzZehn == -1 || r.joker == -1 ? ErsteSchlaegtZweite : ZweiteSchlaegtErste));
    const std::pair<const char*, int> schalter[] = {
        {Joker, r.joker},           {ScharferRupa, r.scharferRupa}, {Solis, r.solis},
        {Pflichtsolo, r.solo},      {VhSolo, r.vhSolo},             {DabuSolo, r.dabuSolo},
        {Neunerwerfen, r.neunerwerfen}, {Koenigewerfen, r.koenigewerfen}, {Armut, r.armut},
        {ZweiSchweine, r.zweiSchweine}, {Supersau, r.supersau},     {Bockrunden, r.bockrunden}};
    for (const auto& [name, wert] : schalter) zeile(t(name), jaNein(wert));
    QStringList sonderpunkte;
    const std::pair<const char*, int> sopu[] = {{SopuFuchs, r.sopuFuchs},         {SopuDoppelfuchs, r.sopuDoppelfuchs},
                                                {SopuKarlchen, r.sopuKarlchen},   {SopuDoppelkarlchen, r.sopuDoppelkarlchen},
                                                {SopuRupaBSolo, r.sopuRupaBSolo}, {SopuDollenschlag, r.sopuDollenschlag},
                                                {SopuHerzstich, r.sopuHerzstich}};
    for (const auto& [name, wert] : sopu)
        if (wert == -1) sonderpunkte << t(name);
    zeile(t(Sonderpunkte), sonderpunkte.isEmpty() ? t(texte::RegelKeine) : sonderpunkte.join(QStringLiteral(", ")));
    html += QStringLiteral("</ul>");
    return html + t(Regeltext);
}

Regelseite::Regelseite(const engine::RegelOptionen& regeln, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("regelseite"));
    setWindowTitle(QString::fromUtf8(texte::RegelnTitel));
    auto* spalte = new QVBoxLayout(this);
    text_ = new QTextBrowser(this);
    text_->setHtml(regelnHtml(regeln));
    spalte->addWidget(text_);
    auto* knoepfe = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
    spalte->addWidget(knoepfe);
    resize(720, 640);
}

QString Regelseite::text() const { return text_->toPlainText(); }

}  // namespace table
