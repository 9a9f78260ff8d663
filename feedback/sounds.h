// The short sounds that answer the child, and the procedures of the music.
#pragma once

#include "core/session.h"

namespace cserko {

/// Plays a wave file in the background and returns at once; the last sound is cut. An empty text stops the sound, "*"
/// plays the silent file and is replaced by its path for the caller. Errors are swallowed.
void hang_lejátszás(Session& session, Text& text);
void hang_lejátszás(Session& session, Text&& text);

/// A random sound of the success list, if success sounds are on.
void helyes_hang(Session& session);
/// A random sound of the error list, or the plain beep if error sounds are off: an error always makes a noise.
void hiba_hang(Session& session);
/// One of the two, for an answer that is right or wrong. Returns which.
bool answer_sound(Session& session, bool right);
/// The alarm of a call for help, if it is on.
void segítség_hang(Session& session);
/// A random sound of the praise list.
void dicséret_hang(Session& session);

/// Plays a title; the one before is closed. An empty text stops and closes the music.
void zene_lejátszás(Session& session, const Text& text);
/// What the music does: begins with "playing" or "paused", empty if nothing is open.
Text zene_állapot(Session& session);
/// Pauses music that plays, lets music that is paused go on. A failure is told in the platform's message box.
void zene_szünet(Session& session);

} // namespace cserko
