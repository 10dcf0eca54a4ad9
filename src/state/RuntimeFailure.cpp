#include "state/RuntimeFailure.h"

namespace ballhaven {

namespace {

std::string Words(RuntimeFailure::Kind kind) {
    switch (kind) {
        case RuntimeFailure::Kind::Overflow:
            return "Overflow: a number does not fit into 16 bits.";
        case RuntimeFailure::Kind::SubscriptOutOfRange:
            return "Subscript out of range: a table has no room for another row.";
        case RuntimeFailure::Kind::DivisionByZero:
            return "Division by zero.";
        case RuntimeFailure::Kind::FileError:
            return "File error.";
    }
    return {};
}

}  // namespace

RuntimeFailure::RuntimeFailure(Kind failureKind) : std::runtime_error(Words(failureKind)), kind(failureKind) {}

RuntimeFailure::RuntimeFailure(const std::string& path, const std::string& reason)
    : std::runtime_error("File error: " + path + "\n" + reason), kind(Kind::FileError) {}

}  // namespace ballhaven
