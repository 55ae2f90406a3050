/* Basic CoreGraphics types shared by the geometry, path, colour and context headers. */
#ifndef COREGRAPHICS_CGBASE_H
#define COREGRAPHICS_CGBASE_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>
#include <float.h>

#if !defined(CGFLOAT_DEFINED)
typedef double CGFloat;
#define CGFLOAT_IS_DBL 1
#define CGFLOAT_MIN DBL_MIN
#define CGFLOAT_MAX DBL_MAX
#define CGFLOAT_DEFINED 1
#endif

#ifdef __cplusplus
#define CG_EXTERN extern "C"
#define CG_EXTERN_C_BEGIN extern "C" {
#define CG_EXTERN_C_END }
#else
#define CG_EXTERN extern
#define CG_EXTERN_C_BEGIN
#define CG_EXTERN_C_END
#endif

#define CG_INLINE static inline

#endif
