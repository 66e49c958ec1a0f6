#pragma once
// The sentences of Trumpf_bedienen (trump led, the own hand holds trump) that the
// rule book words itself; the given ones stand in Texte.h.
#include <string_view>

namespace players::text::trumpf {

using T = std::string_view;

#define TB "Mld.(Trumpf_bedienen):"

// --- Zweithand.
inline constexpr T ZH01 = TB "ZH01 Habe nur einen Trumpf und bediene in ZH mit ihm!";
inline constexpr T ZH02 = TB "ZH02 Nehme den Klärungsstich der Hochzeit in ZH mit dem kleinsten Trumpf, den keiner mehr schlagen kann, und heirate somit!";
inline constexpr T ZH006 = TB "ZH006 Nehme den Klärungsstich der Hochzeit in ZH mit meinem höchsten Trumpf mit, um zu heiraten, auch wenn er noch überstochen werden kann!";
inline constexpr T ZH008 = TB "ZH008 Kann den Klärungsstich der Hochzeit in ZH nicht nehmen und bediene deshalb mit praktisch wertkleinstem Trumpf!";
inline constexpr T ZH009 = TB "ZH009 Lege als Ausrufer der Hochzeit in ZH einen fetten Trumpf zu, der den Stich nicht nimmt! Wer ihn bekommt, wird ja mein Partner!";
inline constexpr T ZH015 = TB "ZH015 Bediene als Ausrufer der Hochzeit in ZH mit kleinem Trumpf, damit ein anderer den Klärungsstich nimmt!";
inline constexpr T ZH017 = TB "ZH017 Nehme als Solist den Stich in ZH mit dem kleinsten Trumpf, den keiner mehr schlagen kann!";
inline constexpr T ZH018 = TB "ZH018 Bediene als Solist in ZH mit praktisch wertkleinstem Trumpf, da ich den Stich nicht sicher nehmen kann!";
inline constexpr T ZH019 = TB "ZH019 Nehme den Trumpfstich des Solisten in ZH mit dem kleinsten Trumpf, der ihn schlägt! Hinter mir sitzen nur noch meine Partner.";
inline constexpr T ZH020 = TB "ZH020 Bediene den Trumpfstich des Solisten in ZH mit praktisch wertkleinstem Trumpf, da ich ihn nicht schlagen kann!";
inline constexpr T ZH029 = TB "ZH029 Gebe in ZH einen kleinen Trumpf mit möglichst vielen Augen zu, da der Stich meinem Partner gehört und der Solist hinter mir ihn nicht schlagen kann!";
inline constexpr T ZH031 = TB "ZH031 Übernehme in ZH den Stich meines Partners mit dem kleinsten Trumpf, den der Solist hinter mir nicht mehr schlagen kann!";
inline constexpr T ZH033 = TB "ZH033 Bediene in ZH mit praktisch wertkleinstem Trumpf, da der Solist hinter mir den Stich meines Partners noch nehmen kann!";
inline constexpr T ZH035 = TB "ZH035 Versteche in ZH den Fuchs auf den sicheren Stich meines Partners, ehe er mir weggefangen wird!";
inline constexpr T ZH037 = TB "ZH037 Buttere in ZH einen fetten Trumpf, da der Stich meinem Partner gehört und ihn keiner mehr schlagen kann!";
inline constexpr T ZH040 = TB "ZH040 Bediene in ZH mit praktisch wertkleinstem Trumpf, da der Stich meinem Partner sicher ist und ich keinen fetten Trumpf habe!";
inline constexpr T ZH045 = TB "ZH045 Übernehme in ZH den Stich meines Partners mit dem kleinsten Trumpf, den keiner mehr schlagen kann, damit seine Augen nicht verloren gehen!";
inline constexpr T ZH047 = TB "ZH047 Bediene in ZH mit praktisch wertkleinstem Trumpf, da der Stich meines Partners noch überstochen werden kann!";
inline constexpr T ZH048 = TB "ZH048 Fange den Fuchs des Feindes in ZH mit dem kleinsten Trumpf, den keiner mehr schlagen kann!";
inline constexpr T ZH0050 = TB "ZH0050 Versuche den Fuchs des Feindes in ZH mit meinem höchsten Trumpf zu fangen!";
inline constexpr T ZH0054 = TB "ZH0054 Übernehme die Kreuz-Dame des Feindes in ZH mit der Dolle und zeige mich damit als Kontra-Spieler!";
inline constexpr T ZH0055 = TB "ZH0055 Schlage die Dolle des Feindes in ZH mit meiner zweiten Dolle!";
inline constexpr T ZH0056 = TB "ZH0056 Nehme den Zähler des Feindes in ZH mit dem kleinsten Trumpf mit, den keiner mehr schlagen kann!";
inline constexpr T ZH057 = TB "ZH057 Nehme den Stich in ZH mit meinem kleinen Trumpf, den keiner mehr schlagen kann!";
inline constexpr T ZH058 = TB "ZH058 Behalte das Karlchen für den letzten Stich und bediene in ZH mit dem anderen Trumpf!";
inline constexpr T ZH060 = TB "ZH060 Bediene in ZH mit praktisch wertkleinstem Trumpf, da der höchste Trumpf des Feindes den Stich hält!";
inline constexpr T ZH061 = TB "ZH061 Nehme den Stich in ZH mit der Kreuz-Dame, damit mein Partner erfährt, wer ich bin!";
inline constexpr T ZH062 = TB "ZH062 Bediene in ZH mit praktisch wertkleinstem Trumpf und spare meine hohen Trümpfe, die den Stich nicht sicher nehmen!";
inline constexpr T ZH064 = TB "ZH064 Bediene in ZH mit praktisch wertkleinstem Trumpf! Mein Partner hinter mir kann den Stich vielleicht noch nehmen.";
inline constexpr T ZH070 = TB "ZH070 Bediene den Trumpfstich des Feindes in ZH mit einem kleinen Trumpf!";
inline constexpr T ZH071 = TB "ZH071 Bediene den Trumpfstich des Feindes in ZH mit einem Buben, da ich keinen kleineren Trumpf habe!";
inline constexpr T ZH072 = TB "ZH072 Muß das Karlchen in ZH hergeben, da ich keinen kleineren Trumpf habe!";
inline constexpr T ZH073 = TB "ZH073 Muß in ZH einen Zähler hergeben, da ich keinen kleineren Trumpf habe!";
inline constexpr T ZH074 = TB "ZH074 Bediene den Trumpfstich des Feindes in ZH mit einer Dame, da ich keinen kleineren Trumpf habe!";
inline constexpr T ZH075 = TB "ZH075 Muß den Fuchs in ZH hergeben, da ich sonst nur höchste Trümpfe habe!";
inline constexpr T ZH076 = TB "ZH076 Habe nur noch höchste Trümpfe und bediene in ZH mit dem kleinsten davon!";
inline constexpr T ZH077 = TB "ZH077 Bediene in ZH mit kleinem Trumpf, da ich nicht weiß, wem der Stich gehört!";
inline constexpr T ZH078 = TB "ZH078 Bediene in ZH mit einem Zähler oder einer Dame, da ich keinen kleineren Trumpf habe und nicht weiß, wem der Stich gehört!";
inline constexpr T ZH079 = TB "ZH079 Bediene in ZH mit praktisch wertkleinstem Trumpf, da ich den Stich nicht sicher nehmen kann!";

// --- Dritthand.
inline constexpr T DH01 = TB "DH01 Habe nur einen Trumpf und bediene in DH mit ihm!";
inline constexpr T DH02 = TB "DH02 Nehme den Klärungsstich der Hochzeit in DH mit dem kleinsten Trumpf, den HH nicht mehr schlagen kann, und heirate somit!";
inline constexpr T DH04 = TB "DH04 Nehme den Klärungsstich der Hochzeit in DH mit meinem höchsten Trumpf mit, um zu heiraten, auch wenn HH noch überstechen kann!";
inline constexpr T DH05 = TB "DH05 Kann den Klärungsstich der Hochzeit in DH nicht nehmen und bediene deshalb mit praktisch wertkleinstem Trumpf!";
inline constexpr T DH06 = TB "DH06 Lege als Ausrufer der Hochzeit in DH einen fetten Trumpf zu, der den Stich nicht nimmt! Wer ihn bekommt, wird ja mein Partner!";
inline constexpr T DH07 = TB "DH07 Bediene als Ausrufer der Hochzeit in DH mit kleinem Trumpf, damit ein anderer den Klärungsstich nimmt!";
inline constexpr T DH08 = TB "DH08 Nehme als Solist den Stich in DH mit dem kleinsten Trumpf, den HH nicht mehr schlagen kann!";
inline constexpr T DH09 = TB "DH09 Bediene als Solist in DH mit praktisch wertkleinstem Trumpf, da ich den Stich nicht sicher nehmen kann!";
inline constexpr T DH10 = TB "DH10 Nehme den Trumpfstich des Solisten in DH mit dem kleinsten Trumpf, der ihn schlägt! In HH sitzt mein Partner.";
inline constexpr T DH11 = TB "DH11 Bediene den Trumpfstich des Solisten in DH mit praktisch wertkleinstem Trumpf, da ich ihn nicht schlagen kann!";
inline constexpr T DH016 = TB "DH016 Gebe in DH einen kleinen Trumpf mit möglichst vielen Augen zu, da der Stich meinem Partner gehört und der Solist ihn nicht mehr schlagen kann!";
inline constexpr T DH018 = TB "DH018 Übernehme in DH den Stich meines Partners mit dem kleinsten Trumpf, den der Solist in HH nicht mehr schlagen kann!";
inline constexpr T DH023 = TB "DH023 Bediene in DH mit praktisch wertkleinstem Trumpf, da der Solist in HH den Stich meines Partners noch nehmen kann!";
inline constexpr T DH024 = TB "DH024 Versteche in DH den Fuchs auf den sicheren Stich meiner Partei, ehe er mir weggefangen wird!";
inline constexpr T DH025 = TB "DH025 Buttere in DH einen fetten Trumpf, da der Stich meiner Partei gehört und HH ihn nicht mehr schlagen kann!";
inline constexpr T DH026 = TB "DH026 Bediene in DH mit praktisch wertkleinstem Trumpf, da der Stich meiner Partei sicher ist und ich keinen fetten Trumpf habe!";
inline constexpr T DH027 = TB "DH027 Übernehme die Kreuz-Dame meines Partners in DH mit der Dolle, damit HH den Stich nicht mit der zweiten Dolle nimmt! Dabei halten mich manche nun für einen Kontra-Spieler.";
inline constexpr T DH033 = TB "DH033 Übernehme in DH den Stich meiner Partei mit dem kleinsten Trumpf, den HH nicht mehr schlagen kann, damit die Augen nicht verloren gehen!";
inline constexpr T DH034 = TB "DH034 Übernehme in DH den Stich meiner Partei mit meinem kleinen Trumpf, den HH nicht mehr schlagen kann!";
inline constexpr T DH035 = TB "DH035 Bediene in DH mit praktisch wertkleinstem Trumpf, da Feind in HH den Stich meiner Partei noch überstechen kann!";
inline constexpr T DH036 = TB "DH036 Bediene in DH mit praktisch wertkleinstem Trumpf, da HH den Stich meiner Partei vielleicht noch überstechen kann!";
inline constexpr T DH037 = TB "DH037 Rette den Fuchs meines Partners in DH mit dem kleinsten Trumpf, den HH nicht mehr schlagen kann!";
inline constexpr T DH039 = TB "DH039 Fange den Fuchs des Feindes in DH mit dem kleinsten Trumpf, den HH nicht mehr schlagen kann!";
inline constexpr T DH042 = TB "DH042 Versuche in DH mit meinem höchsten Trumpf den Fuchs zu fangen oder zu retten, auch wenn HH noch überstechen kann!";
inline constexpr T DH043 = TB "DH043 Übernehme die Kreuz-Dame des Feindes in DH mit der Dolle und zeige mich damit als Kontra-Spieler!";
inline constexpr T DH044 = TB "DH044 Schlage die Dolle des Feindes in DH mit meiner zweiten Dolle!";
inline constexpr T DH046 = TB "DH046 Nehme den Stich des Feindes mit seinen Zählern in DH mit dem kleinsten Trumpf mit, den HH nicht mehr schlagen kann!";
inline constexpr T DH050 = TB "DH050 Nehme den Stich in DH mit meinem kleinen Trumpf, den HH nicht mehr schlagen kann!";
inline constexpr T DH051 = TB "DH051 Wage in DH meinen höchsten Trumpf, da viele Augen im Stich liegen, auch wenn HH noch überstechen kann!";
inline constexpr T DH057 = TB "DH057 Bediene in DH mit praktisch wertkleinstem Trumpf! Mein Partner in HH kann den Stich vielleicht noch nehmen.";
inline constexpr T DH059 = TB "DH059 Behalte das Karlchen für den letzten Stich und bediene in DH mit dem anderen Trumpf!";
inline constexpr T DH060 = TB "DH060 Nehme den Stich in DH mit der Kreuz-Dame, damit mein Partner erfährt, wer ich bin!";
inline constexpr T DH063 = TB "DH063 Bediene in DH mit praktisch wertkleinstem Trumpf, da der höchste Trumpf des Feindes den Stich hält!";
inline constexpr T DH0065 = TB "DH0065 Lasse dem Feind den mageren Stich und spare in DH meinen hohen Trumpf!";
inline constexpr T DH0066 = TB "DH0066 Riskiere in DH meinen Fuchs nicht, da HH ihn noch fangen kann!";
inline constexpr T DH0067 = TB "DH0067 Bediene in DH mit praktisch wertkleinstem Trumpf und spare meine hohen Trümpfe, die den Stich nicht sicher nehmen!";
inline constexpr T DH0068 = TB "DH0068 Bediene in DH mit praktisch wertkleinstem Trumpf, da HH den Stich noch überstechen kann!";
inline constexpr T DH0069 = TB "DH0069 Bediene den Trumpfstich des Feindes in DH mit einem kleinen Trumpf!";
inline constexpr T DH0076 = TB "DH0076 Bediene den Trumpfstich des Feindes in DH mit einem Buben, da ich keinen kleineren Trumpf habe!";
inline constexpr T DH0077 = TB "DH0077 Muß das Karlchen in DH hergeben, da ich keinen kleineren Trumpf habe!";
inline constexpr T DH0078 = TB "DH0078 Muß in DH einen Zähler hergeben, da ich keinen kleineren Trumpf habe!";
inline constexpr T DH0171 = TB "DH0171 Bediene den Trumpfstich des Feindes in DH mit einer Dame, da ich keinen kleineren Trumpf habe!";
inline constexpr T DH0172 = TB "DH0172 Muß den Fuchs in DH hergeben, da ich sonst nur höchste Trümpfe habe!";
inline constexpr T DH0174 = TB "DH0174 Bediene in DH mit kleinem Trumpf, da HH keinen Trumpf mehr hat und der Stich des Feindes genagelt ist!";
inline constexpr T DH0176 = TB "DH0176 Bediene in DH mit praktisch wertkleinstem Trumpf, da HH keinen Trumpf mehr hat und der Stich des Feindes genagelt ist! Einen kleinen Trumpf habe ich nicht.";
inline constexpr T DH0177 = TB "DH0177 Bediene in DH mit praktisch wertkleinstem Trumpf, da der höchste Trumpf den Stich hält und ich nicht weiß, wem er gehört!";
inline constexpr T DH0178 = TB "DH0178 Bediene in DH mit kleinem Trumpf, da ich den Stich nicht schlagen kann und nicht weiß, wem er gehört!";
inline constexpr T DH0180 = TB "DH0180 Bediene in DH mit einem Buben, da ich keinen kleineren Trumpf habe und nicht weiß, wem der Stich gehört!";
inline constexpr T DH0181 = TB "DH0181 Bediene in DH mit einem Zähler, da ich keinen kleineren Trumpf habe und nicht weiß, wem der Stich gehört!";
inline constexpr T DH0182 = TB "DH0182 Bediene in DH mit einer Dame, da ich keinen kleineren Trumpf habe und nicht weiß, wem der Stich gehört!";
inline constexpr T DH0184 = TB "DH0184 Muß in DH den Fuchs zugeben, da ich sonst nur höchste Trümpfe habe und nicht weiß, wem der Stich gehört!";
inline constexpr T DH0185 = TB "DH0185 Lasse in DH den mageren Stich, da ich nicht weiß, wem er gehört, und spare meinen hohen Trumpf!";
inline constexpr T DH0186 = TB "DH0186 Nehme den Stich in DH mit dem kleinsten Trumpf, den HH nicht mehr schlagen kann, auch wenn ich nicht weiß, wem er gehört!";
inline constexpr T DH0283 = TB "DH0283 Spare in DH meine hohen Trümpfe, da ich nicht weiß, wem der Stich gehört, und ihn nicht sicher nehmen kann!";
inline constexpr T DH0287 = TB "DH0287 Bediene in DH mit praktisch wertkleinstem Trumpf, da Feind in HH den Stich noch überstechen kann und ich nicht weiß, wem er gehört!";
inline constexpr T DH0288 = TB "DH0288 Bediene in DH mit praktisch wertkleinstem Trumpf, da HH den Stich vielleicht noch überstechen kann und ich nicht weiß, wem er gehört!";

#undef TB

}  // namespace players::text::trumpf
