#pragma once
// Every text the computer players show, word for word (misspellings and double
// blanks included). Rule sentences carry their "Mld." prefix and code as shown. The
// sentences the following rule book words itself stand beside this file, one header
// per procedure (TexteFarbe.h, TexteTrumpf.h, TexteStechen.h).
#include <string>
#include <string_view>

#include "engine/Sitz.h"

namespace players::text {

using T = std::string_view;

// --- Party knowledge.
inline constexpr T StillesSoloVor = "Stelle ersteinmal ein Stilles Solo bei Spieler ";
inline constexpr T StillesSoloNach = " fest.";
inline constexpr T Spieler_ = "Spieler ";
inline constexpr T BluffMitte = " läßt sich bluffen und vermutet Spieler ";
inline constexpr T BluffEnde = " nunmehr in der Kontra-Partei!";
inline constexpr T ButterStelle = ".Stelle ";
inline constexpr T ButterAlle = "Alle vermuten den an ";
inline constexpr T ButterAugen = " Augen butternden Spieler ";
inline constexpr T ButterPartei = " in der Partei des Gewinners ";
inline constexpr T ButterEnde = " des Stichs, aber  n u r , wenn das auch richtig ist!";
inline constexpr T HoechsterRang = " legte eine Karte im Rang (";
inline constexpr T HoechsterMitte = " ) zu, die nunmehr der höchsten Trumpfkarte des Spiels = ";
inline constexpr T HoechsterEnde = " entsprechen würde oder sogar höher wäre!";
inline constexpr T KeinTrumpfMitte = " denkt daher über Spieler ";
inline constexpr T KeinTrumpfEnde = ", daß er kein Trumpf mehr hat!";
inline constexpr T ParteizeigerFehler = "Fehler nichts bekannt beim Parteizeiger ermitteln!";

// --- Lead.
inline constexpr T SpielerOhneBlank = "Spieler";
// "Spieler3": how the reasoning names a seat at the start of a sentence.
inline std::string spieler(engine::Sitz s) { return std::string(SpielerOhneBlank) + std::to_string(s.nr()); }
inline constexpr T KannAbziehen = " kann Trumpf abziehen!";
inline constexpr T KannAbziehenKeineDolle = " kann Trumpf abziehen, da meine Gegner über keine Dolle verfügen!";
inline constexpr T KannTrumpffarbe = " kann Trumpffarbe ";
inline constexpr T TatsaechlichAbziehen = "  t a t s ä c h l i c h  abziehen!";
inline constexpr T TrumpfZuerstZiehen = "Ziehe Trumpf > von oben < !  Kann Trumpf abziehen!?!";
inline constexpr T Fleischlos = "Lange Farbe bei fleichlosem Solo ausspielen, bzw. zum Stehen bringen!";
inline constexpr T BlankeDolle = "blanke Dolle ausspielen!";
inline constexpr T EinzigesAs = " hat sein einziges As ausgespielt!";
inline constexpr T EinfachesAs = " hat sein am wenigsten besetzte einfache As ausgespielt!";
inline constexpr T DoppelAs = " hat nur irgendein  D o p p e l - A s  ausgespielt!";
inline constexpr T AsVersaeumt = "Habe wohl im ersten Stich dieser Farbe verabsäumt, eines meiner As zu spielen";
inline constexpr T Versager = "Versager!";
inline constexpr T KleinsteSingle = "Warf kleinste Single!";
inline constexpr T KeinerSticht = "Höchste ausspielen, die keiner stechen kann!";
inline constexpr T Freispielen = "Freispielen!";
inline constexpr T ZaehlerNichtOpfern = "Hätte Trumpf von oben gezogen, aber Zähler opfere ich dafür nicht!";
inline constexpr T NichtMitZaehler = "Ziehe Trumpf von oben, aber nicht mit Zähler!";
inline constexpr T VonObenAbziehen = "Ziehe Trumpf von oben! Kann Trumpf abziehen!";
inline constexpr T DreiHoechste = "Ziehe Trumpf von oben, weil ich mindestens die drei höchsten Trümpfe habe!";
inline constexpr T VonOben = "Trumpf von oben ziehen!";
inline constexpr T FarbeGegnerNicht = "Spiele höchste Karte der Farbe aus, die Gegner nicht haben!";
inline constexpr T IrgendeineFarbe = "Spiele höchste Karte irgendeiner Farbe aus!";
inline constexpr T TrumpfKeineFigur = "Spiele höchsten Trumpf aus, der keine Figur ist!";
inline constexpr T KleinsteFigur = "Spiele kleinste Figur aus!";
inline constexpr T FehlStattTrumpf = "Besser Fehl als letzten Trumpf ausspielen!";
inline constexpr T Mittelmaessig = "Mit mittelmäßigen Trumpf vom Stich gehen!";
inline constexpr T DieKleinen = "Die Kleinen ziehen die Großen!";
inline constexpr T LangeFarbe = "Lange Farbe ausspielen!";
inline constexpr T HochGegenSolist = "Hoch gegen Solisten ausspielen!";
inline constexpr T SolistSollStechen = "Der Solist soll die ausgespielte Farbe stechen!";
inline constexpr T RelativZufaellig = "Relativ zufällig ausspielen!";
inline constexpr T RatlosAusspiel =
    "Bin ratlos beim AUSSPIEL !   Erbitte entsprechende Datei mit dem gespeicherten Spiel!";

// --- Trump filters of the lead.
inline constexpr T FuchsKmNicht = "Fuchs und KM nicht ausspielen! Spiele daher zufällig von Fehlfarbe aus!";
inline constexpr T DolleKmNicht = "Dolle und KM nicht ausspielen! Spiele daher zufällig von Fehlfarbe aus!";
inline constexpr T DolleLieberAus = "Spiele Dolle lieber aus anstatt sie blankzuspielen!";
inline constexpr T DolleBlank =
    "Spiele Dolle blank, weil Joker noch im Spiel und ich auch nicht besseres mehr zum Ausspielen habe!";
inline constexpr T LieberFarbkarte =
    "Spiele lieber Farbkarte aus, als Dolle blankzu spielen! Joker ist noch im Spiel, so aß ich mich auch nicht "
    "traue , die Dolle ausszuspielen!";

// --- Following: dispatcher, filters, Dolle handling.
inline constexpr T AbwurfStattStechen =
    "Werfe ab, weil ich in  S t e c h e n  o d e r  A b w e r f e n  keine Antwort gefunden habe!?";
inline constexpr T ZaehlerStechen =
    "Steche in HH, weil ich nur Zähler abwerfen kann und Gegner einen Doppelkopf bekommen würde!";
inline constexpr T NageleStatt = "Nagele statt mit ";
inline constexpr T KarteNunmehrMit = ". Karte nunmehr mit ";
inline constexpr T KarteEnde = ". Karte!";
inline constexpr T KarteSchweinEnde = ". Karte! Es muß sich hierbei immer um ein Schwein/Supersau handeln!";
inline constexpr T NageleStattDolle = "Nagele statt mit Dolle lieber mit vorher ausgewählter ";
inline constexpr T HerzNichtStechen =
    "Steche ausnahmsweise Herz nicht! Steche später die Farbe meiner Abgeworfenen!";
inline constexpr T HerzNichtMitFuchs =
    "Steche Herz nicht mit Fuchs, da ich dieses Risiko angesichts meiner langen Trumpffarbe nicht eingehen will!";
inline constexpr T RatlosStechen =
    "Ratlos bei  S t e c h e n  oder Abwerfen ! Erbitte entsprechende Datei mit dem gespeicherten Spiel!";
inline constexpr T UebernehmeStatt = "Übernehme statt mit ";
inline constexpr T DolleNichtAnNachfolgenden =
    ". Karte, weil ich meine Dolle nicht an nachfolgenden Gegner mit der vermutlich zweiten Dolle verlieren will!";
inline constexpr T DolleNichtImLetzten =
    ". Karte nunmehr mit meiner Dolle, weil ich meine Dolle nicht im letzten Stich an den Gegner verlieren will!";
inline constexpr T RatlosAbwerfen =
    "Ratlos beim  A b w e r f e n !  Erbitte entsprechende Datei mit dem gespeicherten Spiel!";

// Fuchs, Karlchen and Dolle filter.
inline constexpr T SchoneKm =
    "Schone KM für gegnerischen Fuchs! Partner hat ja kein Trumpf mehr! Will Sonderpunkt der Gegner verhindern und "
    "eigenen durch Karlchen machen!";
inline constexpr T TiefeDolleSuche = "Tiefe Dolle nicht nehmen! Suche erneut Trumpf";
inline constexpr T TiefeDolleKlein = "Tiefe Dolle nicht nehmen, sondern lieber kl. Trumpf!";
inline constexpr T SchoneFigur = "Schone Figur! Hätte jetzt normalerweise .";
inline constexpr T SchonenNichtUebernehmen = "Durch das Schonen der Figur kann ich den Stich nicht übernehmen!";
inline constexpr T FigurAuchNicht = "was mir  a u c h  mit der übergebenen Karte(Figur)  n i c h t  möglich wäre !";
inline constexpr T FigurMoeglich = "was mir mit der übergebenen Karte(Figur) möglich wäre !";
inline constexpr T FigurWeiterSchonen =
    "Wenn ich die Figur nicht schone, kann der bisherige Gewinner des Teilstichs meinen restlichen Trumpf auch "
    "abziehen! Schone daher Figur weiterhin!";
inline constexpr T KarlchenStattDolle = "Werfe KARLCHEN MÜLLER statt Dolle ab!!";

// --- abwerfen.
inline constexpr T DH030 = "Mld.(abwerfen):DH030 Werfe in DH Kleinste ab, da der Stich bisher der Gegenpartei gehört und HH auch Feind ist!";
inline constexpr T DH024 = "Mld.(abwerfen):DH024 Werfe in DH Kleinste ab, da der Stich den Gegnern gehört und Freund in HH bedienen muß!";
inline constexpr T DH026 = "Mld.(abwerfen):DH026 Werfe in DH Höchste ab, da der Stich bisher zwar den Gegnern gehört! Vermute Höchste der Farbe aber bei Freund in HH!";
inline constexpr T DH029 = "Mld.(abwerfen):DH029 Werfe in DH Höchste ab, da der Stich bisher zwar den Gegnern gehört! Freund in HH kann den Stich aber stechen!";
inline constexpr T DH028 = "Mld.(abwerfen):DH028 Werfe in DH Kleinste ab, da der Stich den Gegnern gehört und Freund in HH zwar blank ist aber kein Trumpf mehr hat!";
inline constexpr T DH014 = "Mld.(abwerfen):DH014 Werfe in DH Kleinste auf Trumpf des Solisten ab! Der Stich gehört bisher dem Solisten! Bei Freund in HH vermute ich aber nur zu 50% höheres Trumpf und entscheide mich diesmal (50%iger Zufall!) nicht zu buttern!";
inline constexpr T DH014A = "Mld.(abwerfen):DH014A Werfe in DH Höchste auf Trumpf ab, da der Stich bisher zwar nicht meiner Partei gehört! Freund in HH hat aber höheres Trumpf!?!";
inline constexpr T DH015 = "Mld.(abwerfen):DH015 Werfe in DH Höchste auf Trumpf des Solisten ab! Der Stich gehört bisher dem Solisten! Bei Freund in HH vermute ich aber zu 50% höheres Trumpf und entscheide mich daher zu buttern!";
inline constexpr T DH015A = "Mld.(abwerfen):DH015A Werfe in DH Kleinste auf Trumpf ab, da der Trumpf-Stich bisher der Gegenpartei gehört und  HH nicht übertrumpfen kann!?!";
inline constexpr T DH016 = "Mld.(abwerfen):DH016 Werfe in DH Kleinste ab, da der Stich den Gegnern durch Stechen gehört und Freund in HH bedienen muß!";
inline constexpr T DH017 = "Mld.(abwerfen):DH017 Werfe in DH Kleinste ab, da der Stich den Gegnern durch Stechen gehört und Freund in HH zwar blank ist aber kein Trumpf mehr hat!";
inline constexpr T DH020 = "Mld.(abwerfen):DH020 Werfe in DH Kleinste ab, da der Stich zwar nicht genagelt ist und  Freund in HH stechen könnte! Aber ich bin mir eben nicht sicher, ob er den Stich auch übernehmen würde!";
inline constexpr T DH018 = "Mld.(abwerfen):DH018 Werfe in DH Kleinste ab, da der Stich den Gegnern durch Stechen gehört und  g e n a g e l t  ist! Freund in HH blank!";
inline constexpr T DH022 = "Mld.(abwerfen):DH022 Werfe in DH Kleinste ab, da Farbe nicht mehr im Spiel!";
inline constexpr T DH006 = "Mld.(abwerfen):DH006 Werfe in DH Höchste ab, da der Stich bisher durch Stechen meiner Partei gehört! HH ist in meiner Partei, also nicht der Solospieler!";
inline constexpr T DH009 = "Mld.(abwerfen):DH009 Werfe in DH Höchste ab, da der Stich bisher meiner Partei gehört! HH kann zwar Trumpf bedienen, ist aber nicht höher!";
inline constexpr T DH008 = "Mld.(abwerfen):DH008 Werfe in DH Kleinste ab, da der Trumpf-Stich bisher zwar meiner Partei gehört, HH aber übertrumpfen kann!";
inline constexpr T DH010 = "Mld.(abwerfen):DH010 Werfe in DH Höchste ab, da der Stich bisher meiner Partei gehört! HH muß bedienen und es wurde bereits von meiner Partei gestochen!";
inline constexpr T DH013 = "Mld.(abwerfen):DH013 Werfe in DH Kleinste ab, da der Stich bisher zwar durch Stechen meiner Partei gehört, HH aber überstechen kann!";
inline constexpr T DH012 = "Mld.(abwerfen):DH012 Werfe in DH Höchste ab, da der Stich bisher meiner Partei gehört! HH kann den genagelten Stich nicht mehr übertrumpfen!";
inline constexpr T DH011 = "Mld.(abwerfen):DH011 Werfe in DH Höchste ab, da der Stich bisher meiner Partei gehört! HH kann nicht stechen und es wurde bereits von meiner Partei gestochen!";
inline constexpr T DH005 = "Mld.(abwerfen):DH005 Werfe in DH Kleinste ab, da der Stich bisher zwar meiner Partei gehört, aber HH vielleicht höher ist!";
inline constexpr T DH001 = "Mld.(abwerfen):DH001 Werfe in DH Höchste ab, da der Stich bisher meiner Partei gehört! HH muß bedienen und es wurde bereits die Höchste der Farbe ausgespielt!";
inline constexpr T DH002 = "Mld.(abwerfen):DH002 Werfe in DH Höchste ab, da der Stich bisher meiner Partei gehört! HH kann nicht stechen und es wurde bereits die Höchste der Farbe ausgespielt!";
inline constexpr T DH004 = "Mld.(abwerfen):DH004 Werfe in DH Kleinste ab, da der Stich bisher zwar meiner Partei gehört, HH aber stechen kann!";
inline constexpr T DH003 = "Mld.(abwerfen):DH003 Werfe in DH Höchste ab, da der Stich bisher meiner Partei gehört! HH ist in meiner Partei! Es spielt jemand ein Solo.";
inline constexpr T AbwHH002 = "Mld.(abwerfen):HH002 Werfe in HH Kleinste ab, da der Stich Gegenpartei gehört!";
inline constexpr T AbwHH001 = "Mld.(abwerfen):HH001 Werfe in HH Höchste ab, da der Stich meiner Partei gehört!";
inline constexpr T AbwHH002Doppelkopf = "Mld.(abwerfen):HH002 Werfe in HH nur Kleinste ab, da der letzte Stich meinem Partner mit meinem aufgesparten Zähler einen Doppelkopf(!) bringen wird!";

inline constexpr T ZhGegenpartei = "Zweithand: Werfe Kleinste ab, da der Stich noch der Gegenpartei gehört!";
inline constexpr T ZhSolistHoechste = "Zweithand: Werfe Kleinste ab, da der Stich noch dem Solisten gehört und diese Karte die Höchste ist!";
inline constexpr T ZhSolistKeinHoeherer = "Zweithand: Werfe Kleinste ab, da der Stich noch dem Solisten gehört! Keiner meiner Partner wird wohl noch einen höheren Trumpf haben!?!";
inline constexpr T ZhSolistTrumpfButtern = "Zweithand: Buttere Höchste, da der Stich dem Solisten gehört, die Höchste der ausgesp. Tumpffarbe aber noch nicht liegt! Vermute die höchste Trumpfkarte bei meinen Partnern!?!";
inline constexpr T ZhSolistFarbeButtern = "Zweithand: Buttere Höchste, da der Stich dem Solisten gehört, die Höchste der ausgesp. Farbe aber noch nicht liegt!";
inline constexpr T ZhHinterhandBedient = "Zweithand: Buttere Höchste , da der Stich noch meiner Partei gehört, die Höchste der ausgesp. Farbe liegt und Hinterhand bedienen muß!";
inline constexpr T ZhHinterhandSticht = "Zweithand: Werfe Kleinste ab, da der Stich zwar noch meiner Partei gehört und die Höchste vom Stich liegt, aber Hinterhand zu stechen droht!";
inline constexpr T ZhHinterhandKannNicht = "Zweithand: Buttere Höchste, da der Stich noch meiner Partei gehört und Feind in Hinterhand nicht stechen kann!";
inline constexpr T ZhSolistDritthandBedient = "Zweithand: Buttere, da der Stich noch meiner Partei gehört! Solospieler sitzt in Dritthand und hat die gefragte Farbe noch! Die Höchste der ausgespielten Farbe liegt ja bereits!";
inline constexpr T ZhSolistDritthandOhneTrumpf = "Zweithand: Buttere Höchste, da der Stich meiner Partei gehört! Der in Dritthand sitzende Solospieler hat kein Trumpf mehr! Die Höchste der Farbe liegt ja bereits!";
inline constexpr T ZhDritthandSticht = "Zweithand: Werfe Kleinste ab, da der Stich zwar noch meiner Partei gehört, aber Dritthand stechen könnte!";
inline constexpr T ZhHoechsteNichtGelegt = "Zweithand: Werfe in ZH Kleinste ab, da der Stich zwar noch meiner Partei gehört, aber die Höchste vom Stich noch nicht liegt!";

// --- stechen_oder_abwerfen, Hinterhand.
inline constexpr T SoaHH25 = "Mld.(stechen_oder_abwerfen).HH25 Stich gehört zwar Feind. Er kann nun aber zum Freund werden, wenn ich ihm quasi als Mitgift eine Hohe zu seinem (unseren) Stich zulege anstelle von Stechen. Ich bin ja der Ausrufer der Hochzeit! Nehme prakt. werth. Trumpf anstatt zu Buttern, weil ich nur noch Trumpf habe oder ich vorerst eigenes Hohes durchbringen will!";
inline constexpr T SoaHH24 = "Mld.(stechen_oder_abwerfen).HH24 Stich gehört zwar Feind. Er kann nun aber zum Freund werden, wenn ich ihm quasi als Mitgift eine Hohe zu seinem (unseren) Stich zulege anstelle von Stechen. Ich bin ja der Ausrufer der Hochzeit!";
inline constexpr T SoaHH33 = "Mld.(stechen_oder_abwerfen).HH33 Steche in HH mit praktisch werth. Trumpf ungestochenen Stich!";
inline constexpr T SoaHH36 = "Mld.(stechen_oder_abwerfen).HH36 Übersteche in HH den Stich mit meinem gerade so höheren Trumpf!";
inline constexpr T SoaHH38 = "Mld.(stechen_oder_abwerfen).HH38 Werfe Kleinste, da ich nicht überstechen kann!";
inline constexpr T SoaHH39 = "Mld.(stechen_oder_abwerfen).HH39 Werfe Kleinste, da ich nicht überstechen kann! Hätte eigentlich kleinste Farbkarte abgeworfen. Nehme prak. wertkl. Trumpf, da ich nur noch Trumpf habe!";
inline constexpr T SoaHH10 = "Mld.(stechen_oder_abwerfen).HH10 Werfe in HH Höchste ab und versteche meinen letzten Trumpf <>Fuchs(z.Z.höchster Trumpf des Spiels) nicht, da der Stich bisher meiner Partei gehört!";
inline constexpr T SoaHH11 = "Mld.(stechen_oder_abwerfen).HH11 Werfe in HH Höchste ab und versteche meinen letzten Trumpf <>Fuchs(z.Z.höchster Trumpf des Spiels) nicht, da der Stich bisher meiner Partei gehört! Nehme prakt. werth. Trumpf anstatt zu Buttern, weil ich nur noch Trumpf habe!";
inline constexpr T SoaHH19 = "Mld.(stechen_oder_abwerfen).HH19 Werfe in HH Höchste ab und versteche meinen letzten Trumpf (Fuchs) nicht, da der Stich bisher meiner Partei gehört und Mitspieler kein Trumpf mehr haben!";
inline constexpr T SoaHH20 = "Mld.(stechen_oder_abwerfen).HH20 Werfe in HH Höchste ab und versteche meinen letzten Trumpf (Fuchs) nicht, da der Stich bisher meiner Partei gehört und Mitspieler kein Trumpf mehr haben! Nehme prakt. werth. Trumpf anstatt zu Buttern, weil ich nur noch Trumpf habe!";
inline constexpr T SoaHH17 = "Mld.(stechen_oder_abwerfen).HH17 Versteche in HH Fuchs ruhig auf den Stich meiner Partei, ehe er mir weggefangen wird!";
inline constexpr T SoaHH07 = "Mld.(stechen_oder_abwerfen).HH07 Werfe in HH Höchste ab und versteche meinen letzten Trumpf <>Fuchs nicht, da der Stich bisher meiner Partei gehört!";
inline constexpr T SoaHH08 = "Mld.(stechen_oder_abwerfen).HH08  Nehme letzten Trumpf anstatt zu Buttern, weil ich nur noch Trumpf habe!";
inline constexpr T SoaHH01 = "Mld.(stechen_oder_abwerfen).HH01 Werfe in HH Höchste ab, da der Stich meiner Partei gehört!";
inline constexpr T SoaHH04 = "Mld.(stechen_oder_abwerfen).HH04 Werfe in HH Höchste ab, da der Stich meiner Partei gehört! Nehme prakt. werth. Trumpf anstatt zu Buttern, weil ich nur noch Trumpf habe!";

// --- Trumpf_bedienen.
inline constexpr T TbHH016 = "Mld.(Trumpf_bedienen):HH016 Stich gehört zwar Feind und ich kann nicht übernehmen aber er kann nun ja zum Freund werden, wenn ich ihm quasi als Mitgift eine Hohe zu seinem (unseren) Stich zulege!";
inline constexpr T TbHH017 = "Mld.(Trumpf_bedienen):HH017 Was soll ich tun? Sonderpunkt opfern oder H10 aufheben? Opfere vorerst H10 ohne nachzudenken!";
inline constexpr T TbHH018 = "Mld.(Trumpf_bedienen):HH018 Stich gehört Feind(?) und ich kann dies nicht ändern! - Werfe deshalb praktisch wertkleinsten Trumpf!";
inline constexpr T TbHH015 = "Mld.(Trumpf_bedienen):HH015 Übernehme in HH den Stich mit meinem gerade so höheren Trumpf!";
inline constexpr T TbHH07 = "Mld.(Trumpf_bedienen):HH07 Stich gehört zwar Feind. Er kann nun aber zum Freund werden, wenn ich ihm quasi als Mitgift eine Hohe zu seinem (unseren) Stich zulege Ich bin der Ausrufer der Hochzeit!";
inline constexpr T TbHH08 = "Mld.(Trumpf_bedienen):HH08 Übernehme in HH den Stich mit meinem gerade so höheren Trumpf um zu heiraten!";
inline constexpr T TbHH06 = "Mld.(Trumpf_bedienen):HH06 Übernehme in HH den Stich mit meiner prakt. werthöchsten Trumpfkarte!";
inline constexpr T TbHH01 = "Mld.(Trumpf_bedienen):HH01 Werfe in HH grundsätzlich meinen prakt. werthöchsten Trumpf auf den Stich meiner Partei!";
inline constexpr T TbHH05 = "Mld.(Trumpf_bedienen):HH05 Werfe in HH grundsätzlich meinen prakt. werthöchsten Trumpf auf den Stich meiner Partei! Solist droht ja dadurch nicht in  HH  zu kommen. Hätte Stich meiner Partei sonst versucht zu überstechen.";
inline constexpr T TbHH03 = "Mld.(Trumpf_bedienen):HH03 Übernehme in HH den Stich mit meinem gerade so höheren Trumpf! Hätte ich nur meine werth. Trumpfkarte genommen, wäre der Solist in HH gekommen. Dieses galt es zu verhindern!";
inline constexpr T TbHH004 = "Mld.(Trumpf_bedienen):HH004 Werfe in HH grundsätzlich meinen prakt. werthöchsten Trumpf auf den Stich meiner Partei! Solist droht zwar dadurch in  HH  zu kommen. Hätte Stich meiner Partei gerne überstochen, kann es aber nicht.";
inline constexpr T TbHH02 = "Mld.(Trumpf_bedienen):HH02 Übernehme in HH den Stich mit meiner prakt. werthöchsten Trumpfkarte! Solist kommt dadurch auch nicht in HH.";
inline constexpr T TbALL = "Mld.(Trumpf_bedienen):ALL B e d i e n e nur  z u f ä l l i g  einen T r u m p f ! Ratlos! Erbitte entsprechende Datei mit dem gespeicherten Spiel!";

// --- Farbe_bedienen.
inline constexpr T FbHH02 = "Mld.HH02 Stich gehört zwar Feind. Er kann nun aber zum Freund werden, wenn ich ihm quasi als Mitgift eine Hohe zu seinem (unseren) Stich zulege Ich bin der Ausrufer der Hochzeit!";
inline constexpr T FbHH03 = "Mld.HH03 Nehme den ungestochenen Stich in HH so hoch wie möglich mit und heirate somit!";
inline constexpr T FbHH07 = "Mld.HH07 Kann ungestochenen Stich leider nicht mitnehmen! Falle somit als Partner des Hochzeiters aus und werfe deshalb Kleinste!";
inline constexpr T FbHH08 = "Mld.HH08 Stelle in HH fest, daß gestochen wurde! Falle somit als Partner des Hochzeiters aus und bediene deshalb mit Kleinster!";
inline constexpr T FbHH14 = "Mld.HH14 Nehme den ungestochenen Stich in HH nur gerade so mit und hebe meine Höchste dieser Farbe als Ersatztrumpf auf!";
inline constexpr T FbALL = "Mld.ALL Werfe nur  z u f ä l l i g  eine der Farbe! Der Programmierer ist über die Situation zu benachrichtigen. Am Besten Bldschirmfoto!";
inline constexpr T FbDH0150 = "Mld.DH0150 Nehme den ungestochenen Stich des Feindes in DH so hoch wie möglich mit!";
inline constexpr T FbDH0160 = "Mld.DH0160 Hinterhand hat Farbe nicht mehr - Werfe daher meine Kleinste der Farbe!";
inline constexpr T FbDH0247 = "Mld.DH0247 Kann den ungestochenen Stich des Feindes in DH nicht mit der Höchsten s des Spiels mitnehmen - Werfe daher meine kleinste der Farbe!";
inline constexpr T FbDH0248 = "Mld.DH0248 Stelle in DH fest, daß von (Feind?) gestochen wurde!";

// --- Reservations and solos.
inline constexpr T SicheresSoloMitte = " hat  s i c h e r e s  Solo bei Trumpf = ";
inline constexpr T SicheresSoloEnde = " gefunden!";
inline constexpr T UnsicheresSolo = "Sage unsicheres Solo der Farbe ";
inline constexpr T UnsicheresSoloEnde = " an!";
inline constexpr T StillesSoloBehalten =
    " hat beide Kreuz-Damen und ein sicheres Spiel ohne Ansage! Spiele es als stilles Solo!";
inline constexpr T PflichtsoloWahl = " muß sein Pflichtsolo spielen und wählt Trumpf = ";
inline constexpr T HochzeitFehlstich =
    " hat beide Kreuz-Damen und kein sicheres Solo! Heirate den Gewinner des ersten Fehlstichs, weil ich "
    "mit vielen Trümpfen einen Partner mit starken Fehlfarben suche!";
inline constexpr T HochzeitTrumpfstich =
    " hat beide Kreuz-Damen und kein sicheres Solo! Heirate den Gewinner des ersten Trumpfstichs, weil ich "
    "mit mindestens drei Assen in den Fehlfarben einen Partner mit starken Trümpfen suche!";
inline constexpr T HochzeitErsterStich =
    " hat beide Kreuz-Damen und kein sicheres Solo! Heirate den Gewinner des ersten Stichs, damit mein "
    "Partner so früh wie möglich feststeht!";
inline constexpr T SolistStehendeKarte = "Spiele als Solist die Karte aus, die keiner mehr schlagen kann!";
inline constexpr T SolistStichtSicher = "Steche als Solist mit dem kleinsten Trumpf, der den Stich sicher nimmt!";
inline constexpr T SolistSticht = "Steche als Solist den Stich mit Augen, auch wenn noch überstochen werden kann!";

// --- Announcements.
inline constexpr T GegnerLimitErreicht = "Gebe Kontra, weil gegnerisches Limit von ";
inline constexpr T GegnerLimitErreichtEnde = " bereits erreicht!";
inline constexpr T EigenesLimitInGefahr =
    " denkt: (Gegner)? überschreiten Limit meiner Partei! Gebe daher kein Kontra!";
inline constexpr T BereitsGewonnen =
    "Gebe Kontra, weil meine Partei bereits die Augen erzielt hat, die sie um Gewinnen braucht!";
inline constexpr T SoloSicherGewonnen =
    "Gebe Kontra oder als Solist Re, weil ich ein Solo in dieser Farbe sicher gewonnen hätte!/habe!";
inline constexpr T FleischlosSicher = "Gebe als Solist Re, weil ich ein Solo in dieser Farbe sicher gewinne!";
inline constexpr T NichtGewinnbar =
    "Gebe kein Kontra, weil Spiel nicht mehr gewinnbar oder ich die Parteiverteilung noch nicht genau kenne!";
inline constexpr T AnsagewertHoch = "Sage an, weil mein Ansagewert von ";
inline constexpr T AnsagewertHochEnde = " über 100 liegt!";
inline constexpr T LimitAnsagen = "Sage ein Limit von ";
inline constexpr T LimitAnsagenGegner = " an, weil die Gegner bisher ";
inline constexpr T LimitAnsagenRest = " Augen haben und ich höchstens noch ";
inline constexpr T LimitAnsagenEnde = " Augen abgebe!";
inline constexpr T SchwarzAnsagen =
    "Sage SCHWARZ an, weil die Gegner noch keinen Stich haben, ich alle Trümpfe ziehe und keinen Stich abgebe!";

}  // namespace players::text
