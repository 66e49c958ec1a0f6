#pragma once
// The tags of the table protocol in both directions.
#include <string>
#include <string_view>

namespace net {

namespace tag {
// Host to guest.
inline constexpr std::string_view CompN = "CompN";
inline constexpr std::string_view Netzt = "Netzt";
inline constexpr std::string_view Serve = "Serve";
inline constexpr std::string_view NameFrage = "Name?";
inline constexpr std::string_view Waite = "Waite";
inline constexpr std::string_view NochS = "NochS";
inline constexpr std::string_view Einst = "Einst";
inline constexpr std::string_view Abrec = "Abrec";
inline constexpr std::string_view EndeN = "EndeN";
inline constexpr std::string_view EndeB = "EndeB";
inline constexpr std::string_view Lfdsp = "Lfdsp";
inline constexpr std::string_view Verte = "Verte";
inline constexpr std::string_view Start = "Start";
inline constexpr std::string_view Neuer = "Neuer";
inline constexpr std::string_view NeunFrage = "Neun?";
inline constexpr std::string_view KoenFrage = "Koen?";
inline constexpr std::string_view ArmuFrage = "Armu?";
inline constexpr std::string_view HochFrage = "Hoch?";
inline constexpr std::string_view SoloFrage = "Solo?";
inline constexpr std::string_view SoloAusruf = "Solo!";
inline constexpr std::string_view Vorha = "Vorha";
inline constexpr std::string_view EVorh = "EVorh";
inline constexpr std::string_view Vorbe = "Vorbe";
inline constexpr std::string_view SBere = "SBere";
inline constexpr std::string_view ABere = "ABere";
inline constexpr std::string_view KartFrage = "Kart?";
inline constexpr std::string_view Endeb = "Endeb";
inline constexpr std::string_view NeueP = "NeueP";
inline constexpr std::string_view Abmel = "Abmel";
inline constexpr std::string_view NoPas = "NoPas";
// Guest to host.
inline constexpr std::string_view NameAntwort = "Name:";
inline constexpr std::string_view CBere = "CBere";
inline constexpr std::string_view Ready = "Ready";
inline constexpr std::string_view Stich = "Stich";
inline constexpr std::string_view Antwo = "Antwo";
// Both directions.
inline constexpr std::string_view Gesun = "Gesun";
inline constexpr std::string_view Neune = "Neune";
inline constexpr std::string_view Koeni = "Koeni";
inline constexpr std::string_view Armut = "Armut";
inline constexpr std::string_view Hochz = "Hochz";
inline constexpr std::string_view Karte = "Karte";
inline constexpr std::string_view Kontr = "Kontr";
inline constexpr std::string_view Limit = "Limit";
// The chat channel: a line of text; a guest that does not know the tag ignores it.
inline constexpr std::string_view Chat = "Chat:";

// "Name2".."Name4" and "Gpkt1".."Gpkt4" for a host seat.
inline std::string name(int sitz) { return "Name" + std::to_string(sitz); }
inline std::string gpkt(int sitz) { return "Gpkt" + std::to_string(sitz); }
}  // namespace tag

// What the host sent, as the guest's dispatcher tells them apart.
enum class Hostnachricht {
    Unbekannt, CompN, Netzt, Serve, Name, NameFrage, Waite, NochS, Einst, Abrec, EndeN, EndeB, Lfdsp, Gpkt,
    Verte, Start, Neuer, Gesun, NeunFrage, KoenFrage, ArmuFrage, Neune, Koeni, Armut, HochFrage, Hochz,
    SoloFrage, SoloAusruf, Vorha, EVorh, Vorbe, SBere, ABere, KartFrage, Karte, Kontr, Limit, Endeb, NeueP,
    Abmel, NoPas, Chat,
};
// "Name2".."Name4" and "Gpkt1".."Gpkt4" come with their seat; 0 for every other tag.
Hostnachricht hostnachricht(std::string_view tag, int& sitz);

// What a guest sent, as the host's dispatcher tells them apart.
enum class Gastnachricht {
    Unbekannt, Name, CBere, Ready, Stich, Gesun, Neune, Koeni, Armut, Hochz, Antwo, Karte, Kontr, Limit, Chat,
};
Gastnachricht gastnachricht(std::string_view tag);

// The redeal questions and answers by reason (1 Neunen, 2 Könige, 3 Armut); empty for another.
std::string_view neugebeFrage(int grund);
std::string_view neugebeAntwort(int grund);

}  // namespace net
