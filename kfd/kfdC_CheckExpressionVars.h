#pragma once
// The check of the names an expression field uses against the kind of its coordinate system.

class kfdC_ExpressionField;

// The kind of a datum coordinate system as the host resolves it: 0 when the reference is not valid.
enum dtu_DatumCsysType : int {
  dtu_InvalidCsys = 0,
  dtu_RectangularCsys = 1,
  dtu_CylindricalCsys = 2,
  dtu_SphericalCsys = 3,
};

// Passes when the expression uses at least one coordinate name of the system and none of the
// names that belong only to the other systems (case-sensitive substring tests); otherwise throws
// through kfdC_Assert with the system's code. Kinds beyond the spherical one are not checked.
void kfdC_CheckExpressionVars(const kfdC_ExpressionField& field, dtu_DatumCsysType csys);

// True unless the environment variable TSR_OLD_MAPPER is set (to any value, even an empty one);
// mapped fields then use the older mapper.
bool kfdC_UseMTKMapper();
