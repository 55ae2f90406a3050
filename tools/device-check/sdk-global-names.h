// Force-included by tools/device-check.sh into every Objective-C++ source it compiles.
//
// On iOS, Foundation includes CoreFoundation, which includes MacTypes.h: the old Mac
// names below then stand in the global namespace of every Objective-C++ source. A
// using-directive of ours that brings in a type of the same name (a Rect, a Point, a
// Style...) makes each unqualified use ambiguous on the device, while GNUstep's headers,
// which do not declare them, let it compile on Linux. Declaring the same names here shows
// such a collision in the Linux check first. Where the CoreFoundation stand-in already
// declares a name, the type is the one it uses, so both declarations agree.
#pragma once

#include <stdint.h>

#if defined(__cplusplus)
extern "C" {
#endif

typedef unsigned char UInt8;
typedef signed char SInt8;
typedef uint16_t UInt16;
typedef int16_t SInt16;
typedef uint32_t UInt32;
typedef int32_t SInt32;
typedef uint64_t UInt64;
typedef int64_t SInt64;
typedef unsigned char Boolean;
typedef float Float32;
typedef double Float64;
struct Float80 {
  SInt16 exp;
  UInt16 man[4];
};
typedef struct Float80 Float80;
struct Float96 {
  SInt16 exp[2];
  UInt16 man[4];
};
typedef struct Float96 Float96;
struct Float32Point {
  Float32 x;
  Float32 y;
};
typedef struct Float32Point Float32Point;
struct wide {
  UInt32 lo;
  SInt32 hi;
};
typedef struct wide wide;
typedef wide *WidePtr;
struct UnsignedWide {
  UInt32 lo;
  UInt32 hi;
};
typedef struct UnsignedWide UnsignedWide;
typedef UnsignedWide *UnsignedWidePtr;
typedef struct wide extended80;
typedef struct wide extended96;

typedef SInt32 Fixed;
typedef Fixed *FixedPtr;
typedef SInt32 Fract;
typedef Fract *FractPtr;
typedef UInt32 UnsignedFixed;
typedef UnsignedFixed *UnsignedFixedPtr;
typedef short ShortFixed;
typedef ShortFixed *ShortFixedPtr;

typedef SInt16 OSErr;
typedef SInt32 OSStatus;
typedef void *LogicalAddress;
typedef const void *ConstLogicalAddress;
typedef void *PhysicalAddress;
typedef UInt8 *BytePtr;
typedef unsigned long ByteCount;
typedef unsigned long ByteOffset;
typedef SInt32 Duration;
typedef UnsignedWide AbsoluteTime;
typedef UInt32 OptionBits;
typedef unsigned long ItemCount;
typedef UInt32 PBVersion;
typedef SInt16 ScriptCode;
typedef SInt16 LangCode;
typedef SInt16 RegionCode;
typedef UInt32 FourCharCode;
typedef FourCharCode OSType;
typedef FourCharCode ResType;
typedef OSType *OSTypePtr;
typedef ResType *ResTypePtr;
typedef unsigned char Byte;
typedef signed char SignedByte;
typedef char *Ptr;
typedef Ptr *Handle;
typedef long Size;
typedef long (*ProcPtr)(void);
typedef ProcPtr *ProcHandle;
typedef struct RoutineDescriptor *UniversalProcPtr;
typedef UniversalProcPtr *UniversalProcHandle;
typedef void *PRefCon;
typedef void *SRefCon;
typedef void *URefCon;

typedef UInt32 UnicodeScalarValue;
typedef UInt32 UTF32Char;
typedef UInt16 UniChar;
typedef UInt16 UTF16Char;
typedef UInt8 UTF8Char;
typedef UniChar *UniCharPtr;
typedef unsigned long UniCharCount;
typedef UniCharCount *UniCharCountPtr;
typedef unsigned char Str255[256];
typedef unsigned char Str63[64];
typedef unsigned char Str32[33];
typedef unsigned char Str31[32];
typedef unsigned char Str27[28];
typedef unsigned char Str15[16];
typedef unsigned char Str32Field[34];
typedef Str63 StrFileName;
typedef unsigned char *StringPtr;
typedef StringPtr *StringHandle;
typedef const unsigned char *ConstStringPtr;
typedef const unsigned char *ConstStr255Param;
typedef const unsigned char *ConstStr63Param;
typedef const unsigned char *ConstStr32Param;
typedef const unsigned char *ConstStr31Param;
typedef const unsigned char *ConstStr27Param;
typedef const unsigned char *ConstStr15Param;
typedef ConstStr63Param ConstStrFileNameParam;

struct ProcessSerialNumber {
  UInt32 highLongOfPSN;
  UInt32 lowLongOfPSN;
};
typedef struct ProcessSerialNumber ProcessSerialNumber;
typedef ProcessSerialNumber *ProcessSerialNumberPtr;
struct Point {
  short v;
  short h;
};
typedef struct Point Point;
typedef Point *PointPtr;
struct Rect {
  short top;
  short left;
  short bottom;
  short right;
};
typedef struct Rect Rect;
typedef Rect *RectPtr;
struct FixedPoint {
  Fixed x;
  Fixed y;
};
typedef struct FixedPoint FixedPoint;
struct FixedRect {
  Fixed left;
  Fixed top;
  Fixed right;
  Fixed bottom;
};
typedef struct FixedRect FixedRect;
typedef short CharParameter;
typedef unsigned char Style;
typedef short StyleParameter;
typedef Style StyleField;
typedef SInt32 TimeValue;
typedef SInt32 TimeScale;
typedef wide CompTimeValue;
typedef SInt64 TimeValue64;
typedef struct TimeBaseRecord *TimeBase;
struct TimeRecord {
  CompTimeValue value;
  TimeScale scale;
  TimeBase base;
};
typedef struct TimeRecord TimeRecord;
struct NumVersion {
  UInt8 nonRelRev;
  UInt8 stage;
  UInt8 minorAndBugRev;
  UInt8 majorRev;
};
typedef struct NumVersion NumVersion;
union NumVersionVariant {
  NumVersion parts;
  UInt32 whole;
};
typedef union NumVersionVariant NumVersionVariant;
typedef NumVersionVariant *NumVersionVariantPtr;
typedef NumVersionVariantPtr *NumVersionVariantHandle;
struct VersRec {
  NumVersion numericVersion;
  short countryCode;
  Str255 shortVersion;
  Str255 reserved;
};
typedef struct VersRec VersRec;
typedef VersRec *VersRecPtr;
typedef VersRecPtr *VersRecHndl;
typedef SInt8 VHSelect;

enum { noErr = 0 };
enum { kNilOptions = 0 };
enum { kVariableLengthArray = 1 };
enum { kUnknownType = 0x3F3F3F3F };
enum { normal = 0, bold = 1, italic = 2, underline = 4, outline = 8, shadow = 0x10, condense = 0x20, extend = 0x40 };
enum { kVHSelectV = 0, kVHSelectH = 1 };

#if defined(__cplusplus)
}
#endif
