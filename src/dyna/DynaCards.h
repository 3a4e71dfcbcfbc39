#pragma once

#include "dyna/DynaLayout.h"

/// The keyword cards that are written, in their order in the file. Fields that are never written
/// are left off at the ends of lines.
namespace Tevra::DynaCards {

/// Number of the set of all parts.
inline constexpr int kAllPartsSet = 1;

// --- coordinate systems and parts
inline constexpr DynaLayout kCoordinateSystem{
    "*DEFINE_COORDINATE_SYSTEM",
    {},
    {"CID(10I) XO(10F) YO(10F) ZO(10F) XL(10F) YL(10F) ZL(10F)", "XP(10F) YP(10F) ZP(10F)"}};
inline constexpr DynaLayout kPart{"*PART", {}, {"PID(10I) SECID(10I) MID(10I)"}};

// --- control and output
inline constexpr std::string_view kStatesComment =
    "$ DT/CYCL | LCDT/NR | BEAM | NPLTC | PSETID | CID";
inline constexpr std::string_view kFileComment = "$ DT | BINARY | LCUR | IOPT";
inline constexpr DynaLayout kTermination{"*CONTROL_TERMINATION",
                                         "$ ENDTIM | ENDCYC | DTMIN | ENDENG | ENDMAS | NOSOL",
                                         {"ENDTIM(10F) ENDCYC(10I)"}};
inline constexpr DynaLayout kTimestep{
    "*CONTROL_TIMESTEP",
    "$ DTINIT | TSSFAC | ISDO | TSLIMT | DT2MS | LCTM | ERODE | MS1ST",
    {"DTINIT(10F) TSSFAC(10F) ISDO(10I) TSLIMT(10F)"}};
inline constexpr DynaLayout kPlotStates{"*DATABASE_BINARY_D3PLOT", kStatesComment, {"DT(10F)"}};
inline constexpr DynaLayout kTimeHistories{"*DATABASE_BINARY_D3THDT", kStatesComment, {"DT(10F)"}};
inline constexpr DynaLayout kFormat{
    "*DATABASE_FORMAT", "$ IFORM | IBINARY", {"IFORM(10I) IBINARY(10I)"}};
inline constexpr DynaLayout kElementOutput{
    "*DATABASE_ELOUT",
    "$ DT | BINARY | LCUR | IOPT | OPTION1 | OPTION2 | OPTION3 | OPTION4",
    {"DT(10F) BINARY(10I)"}};
inline constexpr DynaLayout kNodeOutput{
    "*DATABASE_NODOUT", "$ DT | BINARY | LCUR | IOPT | OPTION1 | OPTION2", {"DT(10F) BINARY(10I)"}};
inline constexpr DynaLayout kGlobalOutput{
    "*DATABASE_GLSTAT", kFileComment, {"DT(10F) BINARY(10I)"}};
inline constexpr DynaLayout kSectionOutput{
    "*DATABASE_SECFORC", kFileComment, {"DT(10F) BINARY(10I)"}};
inline constexpr DynaLayout kSupportOutput{
    "*DATABASE_SPCFORC", kFileComment, {"DT(10F) BINARY(10I)"}};
inline constexpr DynaLayout kInterfaceOutput{"*DATABASE_BINARY_INTFOR", {}, {"OFF(10I)"}};
inline constexpr DynaLayout kDumpOutput{"*DATABASE_BINARY_D3DUMP", {}, {"OFF(10I)"}};
inline constexpr DynaLayout kRestartOutput{"*DATABASE_BINARY_RUNRSF", {}, {"OFF(10I)"}};
inline constexpr DynaLayout kHistoryNode{"*DATABASE_HISTORY_NODE"};
inline constexpr DynaLayout kHistoryBeam{"*DATABASE_HISTORY_BEAM"};
inline constexpr DynaLayout kHistoryDiscrete{"*DATABASE_HISTORY_DISCRETE"};
inline constexpr DynaLayout kHistoryShell{"*DATABASE_HISTORY_SHELL"};
inline constexpr DynaLayout kHistorySolid{"*DATABASE_HISTORY_SOLID"};
inline constexpr DynaLayout kAllParts{
    "*SET_PART_LIST_GENERATE", {}, {"SID(10I)", "B1BEG(10I) B1END(10I)"}};
inline constexpr DynaLayout kStiffnessDamping{
    "*DAMPING_PART_STIFFNESS_SET", {}, {"PSID(10I) COEF(10F)"}};
/// Kept: the factor stands where the card has a curve number.
inline constexpr DynaLayout kMassDamping{"*DAMPING_PART_MASS_SET", {}, {"PSID(10I) SF(10F)"}};

// --- curves, nodes and supports
inline constexpr DynaLayout kMaterialCurve{
    "*DEFINE_CURVE", {}, {"LCID(10I) SIDR(10I)", "-(10A) A1(10F) -(10A) O1(10F)"}};
inline constexpr DynaLayout kLoadCurve{
    "*DEFINE_CURVE", {}, {"LCID(10I) SIDR(10I)", "A1(20F) O1(20F)"}};
inline constexpr DynaLayout kPrescribedMotion{
    "*BOUNDARY_PRESCRIBED_MOTION_NODE", {}, {"NID(10I) DOF(10I) VAD(10I) LCID(10I)"}};
inline constexpr DynaLayout kNode{"*NODE", {}, {"NID(8I) X(16F) Y(16F) Z(16F)"}};
inline constexpr DynaLayout kSupport{
    "*BOUNDARY_SPC_NODE",
    {},
    {"NID(10I) CID(10I) DOFX(10I) DOFY(10I) DOFZ(10I) DOFRX(10I) DOFRY(10I) DOFRZ(10I)"}};

// --- elements
inline constexpr const char* kBeamLine =
    "EID(8I) PID(8I) N1(8I) N2(8I) N3(8I) RT1(8I) RR1(8I) RT2(8I) RR2(8I)";
inline constexpr const char* kShellLine = "EID(8I) PID(8I) N1(8I) N2(8I) N3(8I) N4(8I)";
inline constexpr DynaLayout kBeam{"*ELEMENT_BEAM", {}, {kBeamLine}};
inline constexpr DynaLayout kOffsetBeam{
    "*ELEMENT_BEAM_OFFSET",
    {},
    {kBeamLine, "WX1(10F) WY1(10F) WZ1(10F) WX2(10F) WY2(10F) WZ2(10F)"}};
inline constexpr DynaLayout kDiscrete{
    "*ELEMENT_DISCRETE", {}, {"EID(8I) PID(8I) N1(8I) N2(8I) VID(8I)"}};
inline constexpr DynaLayout kRigidBody{
    "*CONSTRAINED_NODAL_RIGID_BODY", {}, {"PID(10I) CID(10I) NSID(10I)"}};
inline constexpr DynaLayout kShell{"*ELEMENT_SHELL", {}, {kShellLine}};
inline constexpr DynaLayout kOrientedShell{
    "*ELEMENT_SHELL_MCID",
    {},
    {kShellLine, "THIC1(16F) THIC2(16F) THIC3(16F) THIC4(16F) MCID(16I)"}};
inline constexpr DynaLayout kSolid{
    "*ELEMENT_SOLID",
    {},
    {"EID(8I) PID(8I)", "N1(8I) N2(8I) N3(8I) N4(8I) N5(8I) N6(8I) N7(8I) N8(8I)"}};
inline constexpr DynaLayout kMass{"*ELEMENT_MASS", {}, {"EID(8I) NID(8I) MASS(16F)"}};
inline constexpr DynaLayout kInertia{
    "*ELEMENT_INERTIA",
    {},
    {"EID(8I) NID(8I) CSID(8I)",
     "IXX(10F) IXY(10F) IXZ(10F) IYY(10F) IYZ(10F) IZZ(10F) MASS(10F)"}};

// --- sections, and the materials that go with them
inline constexpr DynaLayout kBeamSection{
    "*SECTION_BEAM_TITLE",
    {},
    {"SECID(10I) ELFORM(10I)", "A(10F) ISS(10F) ITT(10F) J(10F) SA(10F)"}};
inline constexpr DynaLayout kBeamIntegration{
    "*INTEGRATION_BEAM",
    "$ This provides a set of integration points based on the perimeter of the section",
    {"IRID(10I) NIP(10I) RA(10F) ICST(10I)",
     "D1(10F) D2(10F) D3(10F) D4(10F) SREF(10F) TREF(10F) D5(10F) D6(10F)"}};
inline constexpr DynaLayout kDiscreteBeamSection{
    "*SECTION_BEAM", {}, {"SECID(10I) ELFORM(10I)", "VOL(10F) INER(10F) CID(10I) CA(10F)"}};
inline constexpr DynaLayout kDiscreteSection{
    "*SECTION_DISCRETE",
    {},
    {"SECID(10I) DRO(10I) KD(10F) V0(10F) CL(10F) FD(10F)", "CDL(10F) TDL(10F)"}};
inline constexpr DynaLayout kShellSection{
    "*SECTION_SHELL",
    {},
    {"SECID(10I) ELFORM(10I) SHRF(10F) NIP(10I)", "T1(10F) T2(10F) T3(10F) T4(10F)"}};
inline constexpr DynaLayout kComposite{
    "*PART_COMPOSITE",
    {},
    {"PID(10I) ELFORM(10I) SHRF(10F) NLOC(10F)", "MID(10I) THICK(10F) B(10F) TMID(10I)"}};
inline constexpr DynaLayout kSolidSection{"*SECTION_SOLID_TITLE", {}, {"SECID(10I) ELFORM(10I)"}};
inline constexpr DynaLayout kSpringElastic{"*MAT_SPRING_ELASTIC", {}, {"MID(10I) K(10F)"}};
inline constexpr DynaLayout kLinearDiscreteBeam{
    "*MAT_LINEAR_ELASTIC_DISCRETE_BEAM",
    {},
    {"MID(10I) RO(10F) TKR(10F) TKS(10F) TKT(10F) RKR(10F) RKS(10F) RKT(10F)",
     "TDR(10F) TDS(10F) TDT(10F) RDR(10F) RDS(10F) RDT(10F)",
     "FOR(10F) FOS(10F) FOT(10F) MOR(10F) MOS(10F) MOT(10F)"}};
inline constexpr DynaLayout kNonlinearDiscreteBeam{
    "*MAT_NONLINEAR_ELASTIC_DISCRETE_BEAM",
    {},
    {"MID(10I) RO(10F) LCIDTR(10I) LCIDTS(10I) LCIDTT(10I) LCIDRR(10I) LCIDRS(10I) LCIDRT(10I)",
     "LCIDTDR(10I) LCIDTDS(10I) LCIDTDT(10I) LCIDRDR(10I) LCIDRDS(10I) LCIDRDT(10I)",
     "FOR(10F) FOS(10F) FOT(10F) MOR(10F) MOS(10F) MOT(10F)",
     "FFAILR(10F) FFAILS(10F) FFAILT(10F) MFAILR(10F) MFAILS(10F) MFAILT(10F)",
     "UFAILR(10F) UFAILS(10F) UFAILT(10F) TFAILR(10F) TFAILS(10F) TFAILT(10F)"}};
inline constexpr DynaLayout kDamperViscous{"*MAT_DAMPER_VISCOUS", {}, {"MID(10I) DC(10F)"}};
inline constexpr DynaLayout kCableMaterial{
    "*MAT_CABLE_DISCRETE_BEAM", {}, {"MID(10I) RO(10F) E(10F) LCID(10I)"}};

// --- sets, contacts and constraints
inline constexpr DynaLayout kNodeList{"*SET_NODE_LIST", {}, {"SID(10I)"}};
inline constexpr DynaLayout kNodeSet{"*SET_NODE", {}, {"SID(10I)"}};
inline constexpr DynaLayout kBeamSet{"*SET_BEAM", {}, {"SID(10I)"}};
inline constexpr DynaLayout kShellList{"*SET_SHELL_LIST", {}, {"SID(10I)"}};
inline constexpr DynaLayout kShellSet{"*SET_SHELL", {}, {"SID(10I)"}};
inline constexpr DynaLayout kPartList{"*SET_PART_LIST", {}, {"SID(10I)"}};
inline constexpr DynaLayout kTiedContact{
    "*CONTACT_TIED_SHELL_EDGE_TO_SURFACE_ID",
    {},
    {"SURFA(10I) SURFB(10I) SURFATYP(10I) SURFBTYP(10I) SABOXID(10I) SBBOXID(10I)"}};
inline constexpr DynaLayout kLinearConstraint{
    "*CONSTRAINED_LINEAR_LOCAL", {}, {"LCID(10I)", "NID(10I) DOF(10I) CID(10I) COEF(10F)"}};
inline constexpr DynaLayout kMergedBodies{"*CONSTRAINED_RIGID_BODIES", {}, {"PIDL(10I) PIDC(10I)"}};

// --- loads
inline constexpr DynaLayout kNodeLoad{
    "*LOAD_NODE_POINT", {}, {"NID(10I) DOF(10I) LCID(10I) SF(10F) CID(10I)"}};
inline constexpr DynaLayout kBeamLoad{
    "*LOAD_BEAM_ELEMENT", {}, {"EID(10I) DAL(10I) LCID(10I) SF(10F)"}};
inline constexpr DynaLayout kShellLoad{"*LOAD_SHELL_ELEMENT", {}, {"EID(10I) LCID(10I) SF(10F)"}};
inline constexpr DynaLayout kSegmentLoad{
    "*LOAD_SEGMENT",
    "$ LCID | SF | ST | N1 | N2 | N3  | N4 | N5",
    {"LCID(10I) SF(10F) AT(10F) N1(10I) N2(10I) N3(10I) N4(10I)"}};
inline constexpr DynaLayout kGravityX{"*LOAD_BODY_X", {}, {"LCID(10I) SF(10F)"}};
inline constexpr DynaLayout kGravityY{"*LOAD_BODY_Y", {}, {"LCID(10I) SF(10F)"}};
inline constexpr DynaLayout kGravityZ{"*LOAD_BODY_Z", {}, {"LCID(10I) SF(10F)"}};

// --- cross sections of assemblies
inline constexpr DynaLayout kCoordinateNodes{
    "*DEFINE_COORDINATE_NODES", {}, {"CID(10I) N1(10I) N2(10I) N3(10I)"}};
inline constexpr DynaLayout kCrossSection{
    "*DATABASE_CROSS_SECTION_PLANE_ID",
    {},
    {"PSID(10I) XCT(10F) YCT(10F) ZCT(10F) XCH(10F) YCH(10F) ZCH(10F)",
     "XHEV(10F) YHEV(10F) ZHEV(10F) LENL(10F) LENM(10F) ID(10I) ITYPE(10I)"}};

}  // namespace Tevra::DynaCards
