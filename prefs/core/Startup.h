// What the bundle does as Settings loads it, before any page exists.
#pragma once

void tessarinStartUp(void);

// Installs the glyph colour hooks on PKGlyphView (the class is handed in as it initialises).
void installGlyphColorHooks(Class glyphViewClass);
