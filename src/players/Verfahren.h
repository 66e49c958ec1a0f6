#pragma once
// The decision procedures of the rule book. Each returns a card of the own hand
// (a deck position) or 0 when none of its rules fired.
#include <span>

#include "Folgelage.h"
#include "Regeltabelle.h"

namespace players {

// Lead: never 0.
int ausspielWaehlen(const Lage& lage);
// Follow: the dispatcher; never 0.
int bedienenWaehlen(const Lage& lage);

int farbeBedienen(const Folge& folge);
int trumpfBedienen(const Folge& folge);
// Runs the preparation on `folge` first.
int stechenOderAbwerfen(Folge& folge);
int abwerfen(const Lage& lage);

// The soloist's own rules, tried first (0 when none fired).
int solistAusspielen(const Lage& lage);
int solistFolgen(const Lage& lage);

// The last resort: a legal card of few Augen, leads preferring plain cards.
int rueckfallKarte(const Lage& lage);

// Filters that may replace a chosen card (returning the new one, or the old).
// Taking a trick: keep the Dolle from a later opponent with the second Dolle.
int dolleBeimUebernehmen(const Lage& lage, int karte);
// A discard of some worth: rather a lone König, which frees its suit.
int freispielenFilter(const Lage& lage, int karte);
int fuchsKarlchenDolleFilter(const Lage& lage, int karte);
int dolleNagelnFilter(const Lage& lage, int karte);
int herzFilter(const Lage& lage, int karte);

// The rule tables by position (1 ZH, 2 DH, 3 HH), for tests and documentation.
std::span<const Regel> abwerfenRegeln(int anzahl);
std::span<const RegelFuer<Folge>> farbeBedienenRegeln(int anzahl);
std::span<const RegelFuer<Folge>> trumpfBedienenRegeln(int anzahl);
std::span<const RegelFuer<Folge>> stechenRegeln(int anzahl);
std::span<const Regel> ausspielRegeln();

}  // namespace players
