#pragma once
// The sentences of Farbe_bedienen (a plain suit led, the own hand holds it) that the
// rule book words itself; the given ones stand in Texte.h.
#include <string_view>

namespace players::text::farbe {

using T = std::string_view;

// --- Zweithand.
inline constexpr T ZH01 = "Mld.ZH01 Habe nur eine Karte der Farbe und bediene in ZH mit ihr!";
inline constexpr T ZH02 = "Mld.ZH02 Nehme den Klärungsstich der Hochzeit in ZH mit der kleinsten Karte, die keiner mehr schlagen kann, und heirate somit!";
inline constexpr T ZH03 = "Mld.ZH03 Nehme den Klärungsstich der Hochzeit in ZH so hoch wie möglich mit, um zu heiraten, auch wenn er noch geschlagen werden kann!";
inline constexpr T ZH04 = "Mld.ZH04 Kann den Klärungsstich der Hochzeit in ZH nicht mitnehmen und bediene deshalb mit Kleinster!";
inline constexpr T ZH05 = "Mld.ZH05 Lege als Ausrufer der Hochzeit in ZH eine Hohe zu, die den Stich nicht nimmt! Wer ihn bekommt, wird ja mein Partner!";
inline constexpr T ZH06 = "Mld.ZH06 Muß als Ausrufer der Hochzeit den Klärungsstich in ZH selbst nehmen und bediene deshalb mit Kleinster!";
inline constexpr T ZH07 = "Mld.ZH07 Nehme als Solist den Stich in ZH mit der kleinsten Karte, die keiner mehr schlagen oder stechen kann!";
inline constexpr T ZH08 = "Mld.ZH08 Bediene als Solist in ZH mit Kleinster, da die Höchste der Farbe bereits liegt!";
inline constexpr T ZH08a = "Mld.ZH08a Bediene als Solist in ZH mit Kleinster, da ich den Stich nicht sicher nehmen kann!";
inline constexpr T ZH09 = "Mld.ZH09 Nehme den Stich des Solisten in ZH mit der kleinsten Karte, die ihn schlägt! Hinter mir sitzen nur noch meine Partner.";
inline constexpr T ZH10 = "Mld.ZH10 Bediene den Stich des Solisten in ZH mit Kleinster, da ich ihn nicht schlagen kann!";
inline constexpr T ZH11 = "Mld.ZH11 Buttere in ZH, da der Stich meinem Partner gehört und der Solist hinter mir ihn weder schlagen noch stechen kann!";
inline constexpr T ZH12 = "Mld.ZH12 Übernehme in ZH den Stich meines Partners mit der kleinsten Karte, die der Solist hinter mir nicht mehr schlagen kann!";
inline constexpr T ZH13 = "Mld.ZH13 Bediene in ZH mit Kleinster, da der Solist hinter mir den Stich meines Partners noch nehmen kann!";
inline constexpr T ZH14 = "Mld.ZH14 Buttere in ZH meine Zehn, da der Stich meinem Partner gehört und ihn hinter mir keiner schlagen oder stechen kann!";
inline constexpr T ZH15 = "Mld.ZH15 Buttere in ZH meine Höchste der Farbe, da der Stich meinem Partner gehört und ihn hinter mir keiner schlagen oder stechen kann! Eine Zehn habe ich nicht.";
inline constexpr T ZH16 = "Mld.ZH16 Übernehme in ZH den Stich meines Partners mit der kleinsten Karte, die keiner mehr schlagen oder stechen kann!";
inline constexpr T ZH0017 = "Mld.ZH0017 Bediene in ZH mit Kleinster, da der Stich zwar meinem Partner gehört, hinter mir aber gestochen werden kann!";
inline constexpr T ZH0018 = "Mld.ZH0018 Bediene in ZH mit Kleinster, da der Stich zwar meinem Partner gehört, eine höhere Karte der Farbe aber noch aussteht!";
inline constexpr T ZH0019 = "Mld.ZH0019 Buttere in ZH, da mein Partner in HH die Farbe nicht mehr hat und den Stich stechen kann, während DH bedienen muß!";
inline constexpr T ZH0020 = "Mld.ZH0020 Nehme den Zähler des Feindes in ZH mit der kleinsten Karte mit, die keiner mehr schlagen oder stechen kann!";
inline constexpr T ZH0022 = "Mld.ZH0022 Nehme den Stich des Feindes in ZH mit meinem As, das keiner mehr schlagen oder stechen kann!";
inline constexpr T ZH0024 = "Mld.ZH0024 Nehme den Stich in ZH mit meiner Zehn, da die höheren Karten der Farbe gefallen sind und keiner stechen kann!";
inline constexpr T ZH0026 = "Mld.ZH0026 Nehme den Stich in ZH mit meiner kleinen Karte, da keine höhere Karte der Farbe mehr aussteht und keiner stechen kann!";
inline constexpr T ZH0028 = "Mld.ZH0028 Bediene in ZH mit Kleinster, da das As des Feindes den Stich hält! Mein As ist nun die Höchste der Farbe.";
inline constexpr T ZH0029 = "Mld.ZH0029 Bediene in ZH mit Kleinster und schone meine Zehn, da die Höchste der Farbe bereits liegt!";
inline constexpr T ZH0124 = "Mld.ZH0124 Bediene in ZH mit Kleinster, da die Höchste der Farbe bereits liegt und der Stich nicht meiner Partei gehört!";
inline constexpr T ZH0125 = "Mld.ZH0125 Bediene in ZH mit Kleinster und hebe meine Höchste auf, da Feind hinter mir die Farbe nicht mehr hat und stechen kann!";
inline constexpr T ZH0126 = "Mld.ZH0126 Bediene in ZH mit Kleinster und hebe meine Höchste auf, da die Farbe schon gelaufen ist und hinter mir gestochen werden kann!";
inline constexpr T ZH0127 = "Mld.ZH0127 Bediene in ZH mit Kleinster und hebe meine Höchste auf, da zu wenige Karten der Farbe draußen sind und hinter mir gestochen werden kann!";
inline constexpr T ZH0128 = "Mld.ZH0128 Nehme den Stich in ZH mit meiner Höchsten, auch wenn hinter mir gestochen werden kann, da ich sonst nur Zähler der Farbe verschenken müßte!";
inline constexpr T ZH0129 = "Mld.ZH0129 Bediene in ZH mit Kleinster und schone meine Zehn, da eine höhere Karte der Farbe noch aussteht!";
inline constexpr T ZH0130 = "Mld.ZH0130 Bediene in ZH mit Kleinster, da ich den Stich nur mit einer Karte nehmen könnte, die noch geschlagen werden kann!";
inline constexpr T ZH0131 = "Mld.ZH0131 Bediene in ZH mit Kleinster, da ich den Stich nicht schlagen kann! Mein Partner hinter mir nimmt ihn vielleicht noch.";
inline constexpr T ZH0132 = "Mld.ZH0132 Bediene in ZH mit Kleinster, da ich nicht weiß, wem der Stich gehört, und ihn nicht schlagen kann!";
inline constexpr T ZH0133 = "Mld.ZH0133 Gebe in ZH meinen König statt eines Zählers, da ich den Stich des Feindes nicht schlagen kann!";
inline constexpr T ZH0134 = "Mld.ZH0134 Bediene in ZH mit Kleinster, da der Stich dem Feind gehört und ein Feind hinter mir die Farbe nicht mehr hat!";
inline constexpr T ZH0136 = "Mld.ZH0136 Bediene Herz in ZH mit Kleinster, da der Stich dem Feind gehört und Herz mit nur sechs Karten früh gestochen wird!";
inline constexpr T ZH0137 = "Mld.ZH0137 Bediene in ZH mit Kleinster, da der Feind den Stich hält! Die höhere Karte der Farbe hat vielleicht mein Partner.";
inline constexpr T ZH0138 = "Mld.ZH0138 Bediene in ZH mit Kleinster, da der Stich dem Feind gehört und ich ihn nicht schlagen kann!";

// --- Dritthand (DH0001 to DH0004 serve in Hinterhand as well, after its own rules).
inline constexpr T DH0001 = "Mld.DH0001 Habe nur eine Karte der Farbe und bediene mit ihr!";
inline constexpr T DH0002 = "Mld.DH0002 Buttere, da der Stich meiner Partei gehört und ihn keiner mehr schlagen oder stechen kann!";
inline constexpr T DH0003 = "Mld.DH0003 Bediene mit Kleinster, da der Stich nicht meiner Partei gehört und ich ihn nicht schlagen kann!";
inline constexpr T DH0004 = "Mld.DH0004 Nehme den ungestochenen Stich mit der einzigen Karte mit, die ihn schlägt und die keiner mehr schlagen kann!";
inline constexpr T DH0014 = "Mld.DH0014 Nehme den Klärungsstich der Hochzeit in DH so hoch wie möglich mit und heirate somit!";
inline constexpr T DH0015 = "Mld.DH0015 Kann den Klärungsstich der Hochzeit in DH nicht mitnehmen und bediene deshalb mit Kleinster!";
inline constexpr T DH0016 = "Mld.DH0016 Lege als Ausrufer der Hochzeit in DH eine Hohe zu, die den Stich nicht nimmt! Wer ihn bekommt, wird ja mein Partner!";
inline constexpr T DH0017 = "Mld.DH0017 Muß als Ausrufer der Hochzeit den Klärungsstich in DH selbst nehmen und bediene deshalb mit Kleinster!";
inline constexpr T DH0028 = "Mld.DH0028 Nehme als Solist den Stich in DH mit der kleinsten Karte, die HH nicht mehr schlagen oder stechen kann!";
inline constexpr T DH0029 = "Mld.DH0029 Bediene als Solist in DH mit Kleinster, da ich den Stich nicht sicher nehmen kann!";
inline constexpr T DH0031 = "Mld.DH0031 Nehme den Stich des Solisten in DH mit der kleinsten Karte, die ihn schlägt!";
inline constexpr T DH0032 = "Mld.DH0032 Bediene den Stich des Solisten in DH mit Kleinster, da ich ihn nicht schlagen kann!";
inline constexpr T DH0033 = "Mld.DH0033 Übernehme in DH den Stich meines Partners mit der kleinsten Karte, die der Solist in HH nicht mehr schlagen kann!";
inline constexpr T DH0034 = "Mld.DH0034 Bediene in DH mit Kleinster, da der Solist in HH den Stich meines Partners noch nehmen kann!";
inline constexpr T DH0140 = "Mld.DH0140 Buttere in DH, da der Stich dem Feind gehört, mein Partner in HH die Farbe aber nicht mehr hat und ihn stechen kann!";
inline constexpr T DH0180 = "Mld.DH0180 Übernehme in DH den Stich meiner Partei mit der kleinsten Karte, die HH nicht mehr schlagen kann!";
inline constexpr T DH0236 = "Mld.DH0236 Bediene in DH mit Kleinster, da der Stich zwar meiner Partei gehört, HH aber eine höhere Karte der Farbe haben kann!";
inline constexpr T DH0237 = "Mld.DH0237 Bediene in DH mit Kleinster, da ich den Stich des Feindes nicht schlagen kann! Mein Partner in HH nimmt ihn vielleicht noch.";

}  // namespace players::text::farbe
