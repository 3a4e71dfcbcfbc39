#include "support/KeywordCards.h"

#include <algorithm>
#include <iterator>

namespace Tevra::TestSupport {

namespace {

constexpr std::string_view kTitle = "TITLE(80A)";
constexpr std::string_view kStates =
    "DT(10F) LCDT(10I) BEAM(10I) NPLTC(10I) PSETID(10I) CID(10I) NSKIP(10I)";
constexpr std::string_view kFile = "DT(10F) BINARY(10I) LCUR(10I) IOOPT(10I)";
constexpr std::string_view kIds =
    "ID1(10I) ID2(10I) ID3(10I) ID4(10I) ID5(10I) ID6(10I) ID7(10I) ID8(10I)";
constexpr std::string_view kSet = "SID(10I) DA1(10F) DA2(10F) DA3(10F) DA4(10F) SOLVER(10A)";
constexpr std::string_view kBeam =
    "EID(8I) PID(8I) N1(8I) N2(8I) N3(8I) RT1(8I) RR1(8I) RT2(8I) RR2(8I) LOCAL(8I)";
constexpr std::string_view kShell =
    "EID(8I) PID(8I) N1(8I) N2(8I) N3(8I) N4(8I) N5(8I) N6(8I) N7(8I) N8(8I)";
constexpr std::string_view kBody = "LCID(10I) SF(10F) LCIDDR(10I) XC(10F) YC(10F) ZC(10F) CID(10I)";
constexpr std::string_view kBeamSection =
    "SECID(10I) ELFORM(10I) SHRF(10F) QR/IRID(10I) CST(10I) SCOOR(10F) NSM(10F) NAUPD(10I)";
constexpr std::string_view kResultants =
    "A(10F) ISS(10F) ITT(10F) J(10F) SAS(10F) IST(10F) ITORM(10F) SAT(10F)";
constexpr std::string_view kDiscreteBeam =
    "VOL(10F) INER(10F) CID(10I) CA(10F) OFFSET(10F) RRCON(10F) SRCON(10F) TRCON(10F)";
constexpr std::string_view kPlasticKinematic[] = {
    "MID(10I) RO(10F) E(10F) PR(10F) SIGY(10F) ETAN(10F) BETA(10F)",
    "SRC(10F) SRP(10F) FS(10F) VP(10F)"};
constexpr std::string_view kSixCurves = "C1(10I) C2(10I) C3(10I) C4(10I) C5(10I) C6(10I)";
constexpr std::string_view kSixReals = "R1(10F) R2(10F) R3(10F) R4(10F) R5(10F) R6(10F)";
constexpr std::string_view kSevenReals =
    "V1(10F) V2(10F) V3(10F) D1(10F) D2(10F) D3(10F) BETA(10F)";
constexpr std::string_view kEightReals =
    "R1(10F) R2(10F) R3(10F) R4(10F) R5(10F) R6(10F) R7(10F) R8(10F)";

constexpr std::string_view kConcreteTension =
    "ESOFT(10F) LCHAR(10F) MU(10F) TAUMXF(10F) TAUMXC(10F) ECRAGG(10F) AGGSZ(10F) UNITL(10F)";
constexpr std::string_view kConcreteSteel =
    "YMREINF(10F) PRRINF(10F) SUREINF(10F) TYPER(10F) FRACRX(10F) FRACRY(10F) LCRSU(10I) "
    "LCALPS(10I)";
constexpr std::string_view kConcreteOther =
    "AOPT(10F) ET36(10F) PRT36(10F) ECUT36(10F) LCALPC(10I) DEGRAD(10F) ISHCHK(10I) UNLFAC(10F)";
constexpr std::string_view kHingePinching =
    "DELTAS(10F) KAPPAS(10F) DELTAT(10F) KAPPAT(10F) LCSHS(10I) SFSHS(10F) LCSHT(10I) SFSHT(10F)";
constexpr std::string_view kSoilOptions =
    "NOVOID(10I) NPLANES(10I) EXTRA(10I) LCCPDR(10I) LCCPT(10I) LCCJDR(10I) LCCJT(10I) LCSFAC(10I)";
constexpr std::string_view kSoilDepth =
    "GMODDP(10F) GMODGR(10F) LCGMEP(10I) LCPHIEP(10I) LCPSIEP(10I) LCGMST(10I) CVALGR(10F) "
    "ANISO(10F)";

// Layouts of the solver's reader, in the order of their groups there.
constexpr KeywordCard kCards[] = {
    {"KEYWORD", 0, {}},
    {"END", 0, {}},
    {"TITLE", 0, {kTitle}},
    // control and output
    {"CONTROL_TERMINATION",
     0,
     {"ENDTIM(10F) ENDCYC(10I) DTMIN(10F) ENDENG(10F) ENDMAS(10F) NOSOL(10I)"}},
    {"CONTROL_TIMESTEP",
     0,
     {"DTINIT(10F) TSSFAC(10F) ISDO(10I) TSLIMT(10F) DT2MS(10F) LCTM(10I) ERODE(10I) "
      "MS1ST(10I)"}},
    {"DATABASE_BINARY_D3PLOT", 0, {kStates}},
    {"DATABASE_BINARY_D3THDT", 0, {kStates}},
    {"DATABASE_BINARY_D3DUMP", 0, {kStates}},
    {"DATABASE_BINARY_RUNRSF", 0, {kStates}},
    {"DATABASE_BINARY_INTFOR", 0, {"FILENAME(80A)"}},
    {"DATABASE_FORMAT", 0, {"IFORM(10I) IBINARY(10I)"}},
    {"DATABASE_GLSTAT", 0, {kFile}},
    {"DATABASE_SECFORC", 0, {kFile}},
    {"DATABASE_SPCFORC", 0, {kFile}},
    {"DATABASE_NODOUT", 0, {"DT(10F) BINARY(10I) LCUR(10I) IOOPT(10I) OPTION1(10F) OPTION2(10I)"}},
    {"DATABASE_ELOUT", 0, {kFile}},
    {"DATABASE_HISTORY_NODE", 1, {kIds}},
    {"DATABASE_HISTORY_BEAM", 1, {kIds}},
    {"DATABASE_HISTORY_DISCRETE", 1, {kIds}},
    {"DATABASE_HISTORY_SHELL", 1, {kIds}},
    {"DATABASE_HISTORY_SOLID", 1, {kIds}},
    {"DATABASE_CROSS_SECTION_PLANE_ID",
     0,
     {"CSID(10I) HEADING(70A)",
      "PSID(10I) XCT(10F) YCT(10F) ZCT(10F) XCH(10F) YCH(10F) ZCH(10F) RADIUS(10F)",
      "XHEV(10F) YHEV(10F) ZHEV(10F) LENL(10F) LENM(10F) ID(10I) ITYPE(10I)"}},
    // parts, sections, sets, damping
    {"SET_PART_LIST", 2, {kSet, kIds}},
    {"SET_PART_LIST_GENERATE", 2, {kSet, kIds}},
    {"SET_NODE_LIST", 2, {kSet, kIds}},
    {"SET_NODE", 2, {kSet, kIds}},
    {"SET_BEAM", 2, {"SID(10I)", kIds}},
    {"SET_SHELL_LIST", 2, {kSet, kIds}},
    {"SET_SHELL", 2, {kSet, kIds}},
    {"DAMPING_PART_STIFFNESS_SET", 1, {"PSID(10I) COEF(10F)"}},
    {"DAMPING_PART_MASS_SET", 1, {"PSID(10I) LCID(10I) SF(10F) FLAG(10I)"}},
    {"PART",
     1,
     {"HEADING(70A)",
      "PID(10I) SECID(10I) MID(10I) EOSID(10I) HGID(10I) GRAV(10I) ADPOPT(10I) TMID(10I)"}},
    {"PART_COMPOSITE",
     3,
     {kTitle,
      "PID(10I) ELFORM(10I) SHRF(10F) NLOC(10F) MAREA(10F) HGID(10I) ADPOPT(10I) THSHEL(10I)",
      "MID1(10I) THICK1(10F) B1(10F) TMID1(10I) MID2(10I) THICK2(10F) B2(10F) TMID2(10I)"}},
    {"SECTION_BEAM", 0, {kBeamSection, kResultants}},
    {"SECTION_BEAM_TITLE", 0, {kTitle, kBeamSection, kResultants}},
    {"INTEGRATION_BEAM",
     0,
     {"IRID(10I) NIP(10I) RA(10F) ICST(10I) K(10I)",
      "D1(10F) D2(10F) D3(10F) D4(10F) SREF(10F) TREF(10F) D5(10F) D6(10F)"}},
    {"SECTION_DISCRETE",
     0,
     {"SECID(10I) DRO(10I) KD(10F) V0(10F) CL(10F) FD(10F)", "CDL(10F) TDL(10F)"}},
    {"SECTION_SHELL",
     0,
     {"SECID(10I) ELFORM(10I) SHRF(10F) NIP(10I) PROPT(10I) QR/IRID(10I) ICOMP(10I) "
      "SETYP(10I)",
      "T1(10F) T2(10F) T3(10F) T4(10F) NLOC(10F) MAREA(10F) IDOF(10F) EDGSET(10I)"}},
    {"SECTION_SOLID_TITLE", 0, {kTitle, "SECID(10I) ELFORM(10I) AET(10I)"}},
    // nodes, elements, coordinate systems, curves
    {"DEFINE_COORDINATE_SYSTEM",
     1,
     {"CID(10I) XO(10F) YO(10F) ZO(10F) XL(10F) YL(10F) ZL(10F) CIDL(10I)",
      "XP(10F) YP(10F) ZP(10F) TYPE(10I)"}},
    {"DEFINE_COORDINATE_NODES",
     0,
     {"CID(10I) N1(10I) N2(10I) N3(10I) FLAG(10I) DIR(10A) TYPE(10I)"}},
    {"DEFINE_CURVE",
     2,
     {"LCID(10I) SIDR(10I) SFA(10F) SFO(10F) OFFA(10F) OFFO(10F) DATTYP(10I) LCINT(10I)",
      "A1(20F) O1(20F)"}},
    {"NODE", 1, {"NID(8I) X(16F) Y(16F) Z(16F) TC(8I) RC(8I)"}},
    {"ELEMENT_BEAM", 1, {kBeam}},
    {"ELEMENT_BEAM_OFFSET", 1, {kBeam, "WX1(10F) WY1(10F) WZ1(10F) WX2(10F) WY2(10F) WZ2(10F)"}},
    {"ELEMENT_SHELL", 1, {kShell}},
    {"ELEMENT_SHELL_MCID", 1, {kShell, "THIC1(16F) THIC2(16F) THIC3(16F) THIC4(16F) MCID(16I)"}},
    {"ELEMENT_SOLID",
     1,
     {"EID(8I) PID(8I)", "N1(8I) N2(8I) N3(8I) N4(8I) N5(8I) N6(8I) N7(8I) N8(8I) N9(8I) N10(8I)"}},
    {"ELEMENT_DISCRETE", 1, {"EID(8I) PID(8I) N1(8I) N2(8I) VID(8I) S(16F) PF(8I) OFFSET(16F)"}},
    {"ELEMENT_MASS", 1, {"EID(8I) NID(8I) MASS(16F) PID(8I)"}},
    {"ELEMENT_INERTIA",
     1,
     {"EID(8I) NID(8I) CSID(8I)",
      "IXX(10F) IXY(10F) IXZ(10F) IYY(10F) IYZ(10F) IZZ(10F) MASS(10F)"}},
    // constraints, contact, boundary, loads
    {"CONSTRAINED_NODAL_RIGID_BODY",
     1,
     {"PID(10I) CID(10I) NSID(10I) PNODE(10I) IPRT(10I) DRFLAG(10I) RRFLAG(10I)"}},
    {"CONSTRAINED_RIGID_BODIES", 1, {"PIDL(10I) PIDC(10I) IFLAG(10I)"}},
    {"CONSTRAINED_LINEAR_LOCAL", 2, {"LCID(10I)", "NID(10I) DOF(10I) CID(10I) COEF(10F)"}},
    {"CONTACT_TIED_SHELL_EDGE_TO_SURFACE_ID",
     0,
     {"CID(10I) HEADING(70A)",
      "SURFA(10I) SURFB(10I) SURFATYP(10I) SURFBTYP(10I) SABOXID(10I) SBBOXID(10I) "
      "SAPR(10I) SBPR(10I)",
      "FS(10F) FD(10F) DC(10F) VC(10F) VDC(10F) PENCHK(10I) BT(10F) DT(10F)",
      "SFSA(10F) SFSB(10F) SAST(10F) SBST(10F) SFSAT(10F) SFSBT(10F) FSF(10F) VSF(10F)"}},
    {"BOUNDARY_SPC_NODE",
     1,
     {"NID(10I) CID(10I) DOFX(10I) DOFY(10I) DOFZ(10I) DOFRX(10I) DOFRY(10I) DOFRZ(10I)"}},
    {"BOUNDARY_PRESCRIBED_MOTION_NODE",
     1,
     {"NID(10I) DOF(10I) VAD(10I) LCID(10I) SF(10F) VID(10I) DEATH(10F) BIRTH(10F)"}},
    {"LOAD_NODE_POINT",
     1,
     {"NID(10I) DOF(10I) LCID(10I) SF(10F) CID(10I) M1(10I) M2(10I) M3(10I)"}},
    {"LOAD_BEAM_ELEMENT", 1, {"EID(10I) DAL(10I) LCID(10I) SF(10F)"}},
    {"LOAD_SHELL_ELEMENT", 1, {"EID(10I) LCID(10I) SF(10F) AT(10F)"}},
    {"LOAD_SEGMENT", 1, {"LCID(10I) SF(10F) AT(10F) N1(10I) N2(10I) N3(10I) N4(10I) N5(10I)"}},
    {"LOAD_BODY_X", 0, {kBody}},
    {"LOAD_BODY_Y", 0, {kBody}},
    {"LOAD_BODY_Z", 0, {kBody}},
    // materials
    {"MAT_ELASTIC", 0, {"MID(10I) RO(10F) E(10F) PR(10F) DA(10F) DB(10F)"}},
    {"MAT_PLASTIC_KINEMATIC", 0, {kPlasticKinematic[0], kPlasticKinematic[1]}},
    {"MAT_ORTHOTROPIC_ELASTIC",
     0,
     {"MID(10I) RO(10F) EA(10F) EB(10F) EC(10F) PRBA(10F) PRCA(10F) PRCB(10F)",
      "GAB(10F) GBC(10F) GCA(10F) AOPT(10F) G(10F) SIGF(10F)",
      "XP(10F) YP(10F) ZP(10F) A1(10F) A2(10F) A3(10F) MACF(10I) IHIS(10I)",
      "V1(10F) V2(10F) V3(10F) D1(10F) D2(10F) D3(10F) BETA(10F) REF(10F)"}},
    {"MAT_FABRIC",
     0,
     {"MID(10I) RO(10F) EA(10F) EB(10F) EC(10F) PRBA(10F) PRAB(10F) PRCB(10F)",
      "GAB(10F) GBC(10F) GCA(10F) CSE(10F) EL(10F) PRL(10F) LRATIO(10F) DAMP(10F)",
      "AOPT(10F) FLC(10F) FAC(10F) ELA(10F) LNRC(10F) FORM(10I) FVOPT(10I) TSRFAC(10F)",
      "-(10I) RGBRTH(10F) A0REF(10I) A1(10F) A2(10F) A3(10F) X0(10F) X1(10F)",
      "V1(10F) V2(10F) V3(10F) -(10F) -(10F) -(10F) BETA(10F) ISREFG(10I)"}},
    {"MAT_DRUCKER_PRAGER",
     0,
     {"MID(10I) RO(10F) GMOD(10F) RNU(10F) RKF(10F) PHI(10F) CVAL(10F) PSI(10F)", "STR_LIM(10F)",
      kEightReals}},
    {"MAT_MOHR_COULOMB",
     0,
     {"MID(10I) RO(10F) GMOD(10F) RNU(10F) -(10I) PHI(10F) CVAL(10F) PSI(10F)", kSoilOptions,
      kSoilDepth, "LCGMT(10F) LCCVT(10F) LCPHT(10F) EPDAM1(10F) EPDAM2(10F)"}},
    {"MAT_CONCRETE_EC2",
     0,
     {"MID(10I) RO(10F) FC(10F) FT(10F) TYPEC(10F) UNITC(10F) ECUTEN(10F) FCC(10F)",
      kConcreteTension, kConcreteSteel, kConcreteOther, kSixReals, kSevenReals}},
    {"MAT_HYSTERETIC_BEAM",
     0,
     {"MID(10I) RO(10F) E(10F) PR(10F) IAX(10I) ISURF(10I) IHARD(10I) IFEMA(10I)",
      "LCPMS(10I) SFS(10F) LCPMT(10I) SFT(10F) LCAT(10I) SFAT(10F) LCAC(10I) SFAC(10F)",
      kEightReals, kHingePinching, kEightReals, kEightReals, kEightReals}},
    {"MAT_HYSTERETIC_REINF",  // the solver's name is longer
     0,
     {"MID(10I) RO(10F) YM(10F) PR(10F) SIGY(10F) LAMDA(10F) SBUCK(10F) POWER(10F)",
      "FRACX(10F) FRACY(10F) LCTEN(10F) LCCOMP(10F) AOPT(10F) EBU(10F) DOWNSL(10F)",
      "DBAR(10F) FCDOW(10F) LCHARD(10F) UNITC(10F) UNITL(10F)",
      "EPDAM1(10F) EPDAM2(10F) DRESID(10F)", "-(10F) -(10F) -(10F) A1(10F) A2(10F) A3(10F)",
      kSevenReals}},
    {"MAT_PARK_ANG_BEAM",  // no layout of it is known; as the other beams
     0,
     {"MID(10I) RO(10F) E(10F) PR(10F) SIGY(10F) ETAN(10F)", kEightReals}},
    {"MAT_GENERAL_NONLINEAR_6DOF_DISCRETE_BEAM",
     0,
     {"MID(10I) RO(10F) KT(10F) KR(10F) IUNLD(10I) OFFSET(10F) DAMPF(10F) IFLAG(10I)", kSixCurves,
      kSixCurves, kSixCurves, kSixCurves, kSixReals, kSixReals, kSixReals}},
    {"MAT_SEISMIC_ISOLATOR",
     0,
     {"MID(10I) RO(10F) A(10F) BETA(10F) GAMMA(10F) DISPY(10F) STIFFV(10F) ITYPE(10I)",
      "PRELOAD(10F) DAMP(10F) MX1(10F) MX2(10F) MY1(10F) MY2(10F) CDE(10F) IEXTRA(10I)",
      kEightReals, kEightReals}},
    {"MAT_STEEL_EC3",
     0,
     {"MID(10I) RO(10F) E(10F) PR(10F) SGY(10F)",
      "LC_E(10I) LC_PR(10I) LC_AL(10I) TBL_SS(10I) LC_FS(10I)", "-(10A)"}},
    {"MAT_SPRING_ELASTIC", 0, {"MID(10I) K(10F)"}},
    {"MAT_LINEAR_ELASTIC_DISCRETE_BEAM",
     0,
     {"MID(10I) RO(10F) TKR(10F) TKS(10F) TKT(10F) RKR(10F) RKS(10F) RKT(10F)", kSixReals,
      kSixReals}},
    {"MAT_NONLINEAR_ELASTIC_DISCRETE_BEAM",
     0,
     {"MID(10I) RO(10F) C1(10I) C2(10I) C3(10I) C4(10I) C5(10I) C6(10I)", kSixCurves, kSixReals,
      kSixReals, kSixReals}},
    {"MAT_DAMPER_VISCOUS", 0, {"MID(10I) DC(10F)"}},
    {"MAT_CABLE_DISCRETE_BEAM",
     0,
     {"MID(10I) RO(10F) E(10F) LCID(10I) F0(10F) TMAXF0(10F) TRAMP(10F) IREAD(10I)"}},
};

}  // namespace

const KeywordCard* FindKeywordCard(std::string_view keyword) {
    const auto* const found =
        std::find_if(std::begin(kCards), std::end(kCards),
                     [keyword](const KeywordCard& card) { return card.keyword == keyword; });
    return found != std::end(kCards) ? found : nullptr;
}

std::string_view BeamSectionLine(long formulation) {
    return formulation == 6 ? kDiscreteBeam : kResultants;
}

}  // namespace Tevra::TestSupport
