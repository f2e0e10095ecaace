// Messages that several procedures give in the same words.
#pragma once

namespace bor {

struct Contesto;

/// Tells the operator which file could not be written, or that an archive is full where no write failed, and
/// that what is on screen is still there.
void avvisaNonScritto(const Contesto& contesto);

} // namespace bor
