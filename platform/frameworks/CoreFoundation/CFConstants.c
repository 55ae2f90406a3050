/* Writable storage behind CoreFoundation's object constants (declared const in the header);
   filled with Foundation objects when the library loads (see CFBase.mm). */
__attribute__((visibility("default"))) const void *kCFBooleanTrue;
__attribute__((visibility("default"))) const void *kCFBooleanFalse;
