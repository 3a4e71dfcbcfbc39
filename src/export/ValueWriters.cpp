#include <array>
#include <cmath>

#include "export/VynExport.h"
#include "io/NumberFormat.h"
#include "platform/text/Utf8.h"

// Every value becomes the text of one field, or of several, or missing values.
namespace Tevra::Export {

void CVynExport::WriteText(const std::string& text) {
    m_statement += text;
}
void CVynExport::WriteText(char c) {
    m_statement += c;
}

// A quote in the text is written as it is.
void CVynExport::WriteString(const std::string& text) {
    m_fieldText.assign(1, '\'');
    m_fieldText += text;
    m_fieldText += '\'';
    WriteField(m_fieldText);
}

void CVynExport::WriteWide(std::wstring_view text) {
    m_text.clear();
    Text::AppendUtf8(m_text, text);
    WriteString(m_text);
}

void CVynExport::WriteBool(bool value) {
    WriteField(value ? "TRUE" : "FALSE");
}

void CVynExport::WriteInt(int value) {
    m_fieldText.clear();
    AppendInt(m_fieldText, value);
    WriteField(m_fieldText);
}

void CVynExport::WriteDouble(double value) {
    if (std::isnan(value)) {
        WriteNull(1);
        return;
    }
    m_fieldText.clear();
    AppendFixed(m_fieldText, value);
    WriteField(m_fieldText);
}

void CVynExport::WritePair(const Pair& value) {
    WriteDouble(value.first);
    WritePermutation(value.second);
}

void CVynExport::WritePermutation(int permutation) {
    if (permutation > 0) {
        WriteInt(permutation);
    } else {
        WriteNull(1);
    }
}

void CVynExport::WriteVector2(const Vector2& value) {
    WritePair(value.x);
    WritePair(value.y);
}
void CVynExport::WriteVector2(const Vec2<double>& value) {
    WriteDouble(value.x);
    WriteDouble(value.y);
}

void CVynExport::WriteVector3(const Vector3& value) {
    WritePair(value.x);
    WritePair(value.y);
    WritePair(value.z);
}
void CVynExport::WriteVector3(const Vec3<double>& value) {
    WriteDouble(value.x);
    WriteDouble(value.y);
    WriteDouble(value.z);
}

void CVynExport::WriteTensor2(const Tensor2& value) {
    WritePair(value.xx);
    WritePair(value.yy);
    WritePair(value.xy);
}
void CVynExport::WriteTensor2(const Tens2<double>& value) {
    WriteDouble(value.xx);
    WriteDouble(value.yy);
    WriteDouble(value.xy);
}

void CVynExport::WriteTensor3(const Tensor3& value) {
    for (const Pair& pair : {value.xx, value.yy, value.zz, value.xy, value.yz, value.zx}) {
        WritePair(pair);
    }
}
void CVynExport::WriteTensor3(const TensSym3<double>& value) {
    for (const double component : {value.xx, value.yy, value.zz, value.xy, value.yz, value.zx}) {
        WriteDouble(component);
    }
}

void CVynExport::WriteColour(unsigned long colour) {
    constexpr std::array kDigits = {'0', '1', '2', '3', '4', '5', '6', '7',
                                    '8', '9', 'A', 'B', 'C', 'D', 'E', 'F'};
    m_text.assign(1, '#');
    for (const int shift : {0, 8, 16}) {  // red, green, blue
        m_text += kDigits[(colour >> (shift + 4)) & 0xFU];
        m_text += kDigits[(colour >> shift) & 0xFU];
    }
    WriteString(m_text);
}

void CVynExport::WriteCase(const SCaseRef& ref) {
    WriteString(ref.IsAnalysis() ? "Analysis" : ref.IsCombination() ? "Combination" : "");
    WriteInt(ref.Case());
}

// --- declarations

void CVynExport::CreateFieldPair(const std::string& name) {
    CreateField(name, kRealField, false, false);
    CreateField(name + "_perm", kIntegerField, false, false);
}

void CVynExport::CreateVector2Fields(const std::string& name) {
    CreateFieldPair(name + "_x");
    CreateFieldPair(name + "_y");
}

void CVynExport::CreateVector3Fields(const std::string& name, bool rotations) {
    for (const char* const direction : {"_x", "_y", "_z"}) {
        CreateFieldPair(name + direction);
    }
    if (rotations) {
        for (const char* const direction : {"_xx", "_yy", "_zz"}) {
            CreateFieldPair(name + direction);
        }
    }
}

void CVynExport::CreateTensor2Fields(const std::string& name) {
    for (const char* const component : {"_xx", "_yy", "_xy"}) {
        CreateFieldPair(name + component);
    }
}

void CVynExport::CreateTensor3Fields(const std::string& name) {
    for (const char* const component : {"_xx", "_yy", "_zz", "_xy", "_yz", "_zx"}) {
        CreateFieldPair(name + component);
    }
}

}  // namespace Tevra::Export
