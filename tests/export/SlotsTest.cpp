#include <array>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "export/ExportAccess.h"

namespace Tevra::Export {
namespace {

/// The slot of a virtual operation, which a pointer to it holds: one more than its offset in the
/// table (Itanium C++ ABI on x86-64).
template <class Operation>
std::size_t SlotOf(Operation operation) {
    std::array<std::uintptr_t, 2> words{};
    static_assert(sizeof(operation) == sizeof(words));
    std::memcpy(words.data(), &operation, sizeof(words));
    return (words[0] - 1) / sizeof(void*);
}

template <class... Arguments>
using Write = void (CVynExport::*)(Arguments...);
using Name = const std::string&;

// Hosts and dialects that were built before rely on the order.
TEST(Slots, VirtualOperationsKeepTheirOrder) {
#if !defined(__x86_64__) || defined(_MSC_VER)
    GTEST_SKIP() << "pointers to operations look otherwise here";
#else
    using E = CVynExport;
    const std::vector<std::size_t> slots{
        VynExportAccess::AskOfSetFolder<&SlotOf<void (E::*)()>>(),
        SlotOf(&E::OpenFile),
        SlotOf(&E::CloseFile),
        SlotOf(static_cast<Write<Name>>(&E::WriteText)),
        SlotOf(static_cast<Write<char>>(&E::WriteText)),
        SlotOf(&E::WriteString),
        SlotOf(&E::WriteBool),
        SlotOf(&E::WriteInt),
        SlotOf(&E::WriteDouble),
        SlotOf(static_cast<Write<const Vector2&>>(&E::WriteVector2)),
        SlotOf(static_cast<Write<const Vec2<double>&>>(&E::WriteVector2)),
        SlotOf(static_cast<Write<const Vector3&>>(&E::WriteVector3)),
        SlotOf(static_cast<Write<const Vec3<double>&>>(&E::WriteVector3)),
        SlotOf(static_cast<Write<const Tensor2&>>(&E::WriteTensor2)),
        SlotOf(static_cast<Write<const Tens2<double>&>>(&E::WriteTensor2)),
        SlotOf(static_cast<Write<const Tensor3&>>(&E::WriteTensor3)),
        SlotOf(static_cast<Write<const TensSym3<double>&>>(&E::WriteTensor3)),
        SlotOf(&E::WritePair),
        SlotOf(&E::WriteColour),
        SlotOf(&E::WriteCase),
        SlotOf(&E::WritePermutation),
        SlotOf(&E::CreateTableStart),
        SlotOf(&E::CreateTableEnd),
        SlotOf(static_cast<Write<Name, const SqlField&, Name, Name>>(&E::CreateField)),
        SlotOf(
            static_cast<Write<Name, const SqlField&, const char*, const char*>>(&E::CreateField)),
        SlotOf(static_cast<Write<Name, const SqlField&, bool, bool>>(&E::CreateField)),
        SlotOf(&E::CreateFieldPair),
        SlotOf(&E::CreateVector2Fields),
        SlotOf(&E::CreateVector3Fields),
        SlotOf(&E::CreateTensor2Fields),
        SlotOf(&E::CreateTensor3Fields),
        SlotOf(&E::WriteRecordStart),
        SlotOf(&E::WriteRecordEnd),
        SlotOf(&E::WriteField),
        SlotOf(&E::WriteNull),
    };
    for (std::size_t i = 0; i < slots.size(); ++i) {
        EXPECT_EQ(slots[i], i);
    }
    EXPECT_EQ(slots.size(), 35U);
#endif
}

}  // namespace
}  // namespace Tevra::Export
