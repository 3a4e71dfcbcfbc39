#include <gtest/gtest.h>
#include <random>

#include "model/VynData.h"
#include "support/Random.h"

// What a model keeps up to date by itself while records are written, overwritten and deleted in any
// order, held against working it out anew.
namespace Tevra {
namespace {

constexpr int kMost = 6;  ///< numbers of each kind: few, so that records meet

template <class Table>
bool SomeIsOrientedBy(const Table& table, int node) {
    for (const int number : table.Numbers()) {
        if (table.Get(number).OrientationNode() == node) {
            return true;
        }
    }
    return false;
}

void ExpectUpkeep(const CVynData& model) {
    for (const int node : model.NodeTable().Numbers()) {
        const Data::CNode& record = model.Node(node);
        ASSERT_EQ(record.IsOrientationNodeTo(SelType::Element),
                  SomeIsOrientedBy(model.ElemTable(), node));
        ASSERT_EQ(record.IsOrientationNodeTo(SelType::Member),
                  SomeIsOrientedBy(model.MemberTable(), node));
        ASSERT_EQ(record.TotalNodalRestraint(), record.Restraint() | model.GlobalRestraint());
    }
}

template <class Record>
Record OrientedBy(int node) {
    Record record;
    record.SetOrientationNode(node);
    return record;
}

void ChangeSomething(CVynData& model, std::mt19937_64& random) {
    const int number = 1 + static_cast<int>(random() % kMost);
    const int node = static_cast<int>(random() % (kMost + 2)) - 1;  // none and nonsense included
    switch (random() % 9) {
        case 0:
        case 1:
            model.SetElem(number, OrientedBy<Data::CElement>(node));
            break;
        case 2:
            model.SetMember(number, OrientedBy<Data::CMember>(node));
            break;
        case 3:
            model.DeleteElem(number);
            break;
        case 4:
            model.BlankMember(number);
            break;
        case 5:
            model.DeleteNode(number);
            break;
        case 6:
            model.SetGlobalRestraint(Vbool6::FromBits(static_cast<unsigned>(random())));
            break;
        case 7:
            model.SetNode(number, model.Node(number % kMost + 1));  // a copy of another node
            break;
        default: {
            Data::CNode record;
            record.SetRestraint(Vbool6::FromBits(static_cast<unsigned>(random())));
            model.SetNode(number, record);
        }
    }
}

TEST(Upkeep, OfOrientationAndRestraintHoldsInAnyOrderOfChanges) {
    std::mt19937_64 random = TestSupport::SeededRandom(3);
    for (int run = 0; run < 20; ++run) {
        CVynData model;
        for (int step = 0; step < 200; ++step) {
            ChangeSomething(model, random);
            ASSERT_NO_FATAL_FAILURE(ExpectUpkeep(model)) << run << "/" << step;
        }
        CVynData copy = model;
        for (int step = 0; step < 20; ++step) {
            ChangeSomething(copy, random);
            ASSERT_NO_FATAL_FAILURE(ExpectUpkeep(copy));
        }
        ASSERT_NO_FATAL_FAILURE(ExpectUpkeep(model));
    }
}

TEST(Upkeep, AnEmptiedModelForgetsWhatItWasTold) {
    CVynData model;
    model.SetElem(1, OrientedBy<Data::CElement>(3));
    model.SetGlobalRestraint(Vbool6::FromBits(63));
    model.SetNode(3, Data::CNode());
    model = CVynData();
    model.SetNode(3, Data::CNode());
    EXPECT_FALSE(model.Node(3).IsOrientationNodeTo(SelType::Element));
    EXPECT_TRUE(model.Node(3).TotalNodalRestraint().IsNone());
    EXPECT_TRUE(model.TotalGlobalRestraint().IsNone());
}

TEST(Upkeep, RefusedRecordsChangeNothing) {
    CVynData model;
    model.SetNode(3, Data::CNode());
    EXPECT_FALSE(model.SetElem(0, OrientedBy<Data::CElement>(3)));
    EXPECT_FALSE(model.DeleteElem(1));
    EXPECT_FALSE(model.Node(3).IsOrientationNodeTo(SelType::Element));
}

TEST(Locks, BelongToTheModelWhateverItHolds) {
    CVynData model;
    CVynData other;
    other.SetNode(1, Data::CNode());
    other.DataLock().LockByResults();
    const SyncObject* const busy = &model.ShareModelBusy();
    const SyncObject* const results = &model.ShareResultsBusy();
    EXPECT_NE(busy, results);
    model = other;
    EXPECT_TRUE(model.IsLockedByResults());
    EXPECT_EQ(&model.ShareModelBusy(), busy);
    model = std::move(other);
    EXPECT_EQ(&model.ShareModelBusy(), busy);
    EXPECT_EQ(&model.ShareResultsBusy(), results);
    // What was moved from is an empty model with locks of its own.
    // NOLINTNEXTLINE(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
    EXPECT_TRUE(other == CVynData());
    EXPECT_FALSE(other.IsLockedByResults());
    EXPECT_TRUE(ProbeLock(other.ShareModelBusy(), 0));
    EXPECT_TRUE(ProbeLock(other.ShareResultsBusy(), 0));
    const CVynData& self = model;
    model = self;
    EXPECT_TRUE(model.NodeExist(1));
    const CVynData copy = model;
    EXPECT_NE(&copy.ShareModelBusy(), busy);
}

TEST(LoadCases, FollowEveryKindOfLoadAndItsDeletion) {
    CVynData model;
    const auto load = [](auto record, int loadCase) {
        record.SetLoadCase(loadCase);
        return record;
    };
    model.SetNodeLoad(1, load(Data::CNodeLoad(), 2));
    model.SetSettlement(1, load(Data::CSettlement(), 3));
    model.SetAppliedDisplacement(1, load(Data::CAppliedDisplacement(), 4));
    model.SetBeamLoad(1, load(Data::CBeamLoad(), 5));
    model.SetBeamDist(1, load(Data::CBeamDist(), 6));
    model.SetAxialLoad(1, load(Data::CAxialLoad(), 7));
    model.SetBeamThermalLoad(1, load(Data::CBeamThermalLoad(), 8));
    model.SetFaceLoad(1, load(Data::CFaceLoad(), 9));
    model.SetEdgeLoad(1, load(Data::CEdgeLoad(), 10));
    model.SetInPlaneLoad(1, load(Data::CInPlaneLoad(), 11));
    model.SetFaceThermalLoad(1, load(Data::CFaceThermalLoad(), 12));
    model.SetGravityLoad(1, load(Data::CGravityLoad(), 13));
    model.SetGravityLoad(2, load(Data::CGravityLoad(), 13));
    model.SetGravityLoad(3, load(Data::CGravityLoad(), 0));
    EXPECT_FALSE(model.LoadCaseExist(0));
    EXPECT_FALSE(model.LoadCaseExist(1));
    for (int n = 2; n <= 13; ++n) {
        EXPECT_TRUE(model.LoadCaseExist(n)) << n;
    }
    EXPECT_EQ(model.HighestEnt(SelType::LoadCase), 13);
    model.DeleteGravityLoad(1);
    EXPECT_EQ(model.HighestLoadCase(), 13);
    model.DeleteGravityLoad(2);
    EXPECT_EQ(model.HighestLoadCase(), 12);
    model.SetFaceThermalLoad(1, load(Data::CFaceThermalLoad(), 2));
    EXPECT_EQ(model.HighestLoadCase(), 11);
}

}  // namespace
}  // namespace Tevra
