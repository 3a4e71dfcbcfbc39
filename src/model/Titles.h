#pragma once

#include <string>
#include <vector>

namespace Tevra {

/// Titles of the job; all texts are the user's own.
class CTitles {
public:
    const std::wstring& JobTitle() const { return m_jobTitle; }
    const std::wstring& SubTitle() const { return m_subTitle; }
    const std::wstring& CalcHeading() const { return m_calcHeading; }
    const std::wstring& JobNumber() const { return m_jobNumber; }
    const std::wstring& Initials() const { return m_initials; }
    const std::wstring& DateSaved() const { return m_dateSaved; }
    const std::wstring& FileName() const { return m_fileName; }
    const std::wstring& Notes() const { return m_notes; }

    void SetJobTitle(std::wstring text) { m_jobTitle = std::move(text); }
    void SetSubTitle(std::wstring text) { m_subTitle = std::move(text); }
    void SetCalcHeading(std::wstring text) { m_calcHeading = std::move(text); }
    void SetJobNumber(std::wstring text) { m_jobNumber = std::move(text); }
    void SetInitials(std::wstring text) { m_initials = std::move(text); }
    void SetDateSaved(std::wstring text) { m_dateSaved = std::move(text); }
    void SetFileName(std::wstring text) { m_fileName = std::move(text); }
    void SetNotes(std::wstring text) { m_notes = std::move(text); }

    bool operator==(const CTitles&) const = default;

private:
    std::wstring m_jobTitle;
    std::wstring m_subTitle;
    std::wstring m_calcHeading;
    std::wstring m_jobNumber;
    std::wstring m_initials;
    std::wstring m_dateSaved;
    std::wstring m_fileName;
    std::wstring m_notes;
};

/// Name and version of the host program, and its notice of rights.
class CProgTitles {
public:
    const std::wstring& ProgramName() const { return m_name; }
    /// The version as text with the parts that are asked for: "8.7.1", "8.7", "8".
    std::wstring ProgramVersion(bool major = true, bool minor = true, bool release = true) const;
    const std::wstring& Notice() const { return m_notice; }

    void SetProgramName(std::wstring name) { m_name = std::move(name); }
    /// Three parts separated by points, each the number that it begins with; 0 without one.
    void SetProgramVersion(const std::wstring& text);
    void SetProgramVersion(int major, int minor, int release) {
        m_major = major;
        m_minor = minor;
        m_release = release;
    }
    void SetNotice(std::wstring notice) { m_notice = std::move(notice); }

    bool operator==(const CProgTitles&) const = default;

private:
    std::wstring m_name = L"VYN";
    int m_major = 1;
    int m_minor = 0;
    int m_release = 0;
    std::wstring m_notice = L"Copyright (c) Tevra. All rights reserved.";
};

/// Where the structure stands.
class CLocation {
public:
    const std::wstring& Country() const { return m_country; }
    /// Up to ten characters.
    const std::wstring& CountryAbbreviation() const { return m_abbreviation; }
    /// Direction of north from global Y, degrees.
    double North() const { return m_north; }
    /// m above sea level.
    double Elevation() const { return m_elevation; }
    /// Decimal degrees, north and east positive.
    double Latitude() const { return m_latitude; }
    double Longitude() const { return m_longitude; }

    void SetCountry(std::wstring name, std::wstring abbreviation) {
        m_country = std::move(name);
        m_abbreviation = std::move(abbreviation);
    }
    void SetNorth(double degrees) { m_north = degrees; }
    void SetElevation(double elevation) { m_elevation = elevation; }
    void SetLatitude(double degrees) { m_latitude = degrees; }
    void SetLongitude(double degrees) { m_longitude = degrees; }

    bool operator==(const CLocation&) const = default;

private:
    std::wstring m_country;
    std::wstring m_abbreviation;
    double m_north = 0.0;
    double m_elevation = 0.0;
    double m_latitude = 0.0;
    double m_longitude = 0.0;
};

/// One entry of the model's history.
struct CHistoryRec {
    std::wstring date;  ///< "YYYY-MM-DD"
    std::wstring time;  ///< "HH:MM:SS", local
    std::wstring user;
    std::wstring notes;
    bool operator==(const CHistoryRec&) const = default;
};

/// What was done to the model, and when.
class CHistory {
public:
    int NumRecord() const { return static_cast<int>(m_records.size()); }
    /// Record `i`, from 1; an empty one outside.
    const CHistoryRec& Record(int i) const;
    /// Replaces record `i`; `NumRecord()` + 1 appends. False for other numbers.
    bool SetRecord(int i, CHistoryRec record);
    /// Stamps a record with the local date and time and the user of the session.
    static void UpdateSession(CHistoryRec& record);
    bool operator==(const CHistory&) const = default;

private:
    std::vector<CHistoryRec> m_records;
};

/// The value of a tag in a tagged identifier text ("tag=value" items separated by ";"). Tags are
/// compared without regard to case, the first match wins; empty when the tag is missing.
std::wstring SidTagValue(const std::wstring& sid, const std::wstring& tag);

}  // namespace Tevra
