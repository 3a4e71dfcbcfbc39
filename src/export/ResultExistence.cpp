#include <algorithm>
#include <initializer_list>
#include <stdexcept>

#include "export/VynExport.h"

// Which kinds of results a case has, by the host's codes of result data.
namespace Tevra::Export {

bool CVynExport::AnyExist(const SCaseRef& ref, std::initializer_list<int> codes) const {
    return std::any_of(codes.begin(), codes.end(), [&](int code) {
        return m_model->ResSetExist({ref, code});
    });
}

bool CVynExport::DisplacementExist(const SCaseRef& ref, char option) const {
    switch (option) {
        case 'N':
            return AnyExist(ref, {12001004, 12001008});
        case '1':
        case 'S':
            return AnyExist(ref, {14001004, 14001008});
        case '2':
            return AnyExist(ref, {15001004, 15001008});
        case '3':
            return AnyExist(ref, {15501004});
        case 'A':
            return true;
        default:
            throw std::logic_error("invalid displacement option");
    }
}

bool CVynExport::VelocityExist(const SCaseRef& ref) const {
    return AnyExist(ref, {12002004, 12002008});
}
bool CVynExport::AccelerationExist(const SCaseRef& ref) const {
    return AnyExist(ref, {12003004, 12003008});
}
bool CVynExport::ReactionExist(const SCaseRef& ref) const {
    return AnyExist(ref, {12004004, 12004008});
}
bool CVynExport::ConstraintExist(const SCaseRef& ref) const {
    return AnyExist(ref, {12005004, 12005008});
}

bool CVynExport::ForceExist(const SCaseRef& ref, char option) const {
    switch (option) {
        case '1':
        case 'S':
            return AnyExist(ref, {14002004, 14002008});
        case '2':
            return AnyExist(ref, {15004001, 15003001, 15004002});
        case 'A':
            return true;
        default:
            throw std::logic_error("invalid force option");
    }
}

bool CVynExport::StressExist(const SCaseRef& ref, char option) const {
    switch (option) {
        case '2':
            return AnyExist(ref, {15007000});
        case '3':
            return AnyExist(ref, {15506000});
        default:
            throw std::logic_error("invalid stress option");
    }
}

}  // namespace Tevra::Export
