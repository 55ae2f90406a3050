/* GNUstep's headers include this when blocks are on; Debian ships only <Block.h>. */
#include <Block.h>
