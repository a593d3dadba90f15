#include "support/specimen.hpp"

#include <memory>

namespace kor::testing {

std::vector<Registration> &registry()
{
    static std::vector<Registration> all;
    return all;
}

std::vector<unsigned char> run_specimen(const Registration &registration, Specimen::Around around)
{
    const std::unique_ptr<Specimen> specimen{registration.make(std::move(around))};
    specimen->run();
    return specimen->bytes();
}

} // namespace kor::testing
