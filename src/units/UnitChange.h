// A change of units: names, factors, flow bases and modes of the record, and all its values with them.
//
//   UnitChange change;             // what stands becomes the previous units
//   ApplyNamedUnitSet(...)         // or names, factors and bases one by one
//   change.PressureMode = ...      // and DensityMode; those that are left alone stay
//   change.Commit();               // the values follow
//
// Without Commit the destructor gives the record its previous units again. One change at a time.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "core/Suite.h"
#include "units/ProgramConversion.h"

namespace quillmetra {

class UnitChange {
public:
    UnitChange();
    ~UnitChange();
    UnitChange(const UnitChange&) = delete;
    UnitChange& operator=(const UnitChange&) = delete;

    std::string PressureMode, DensityMode;  // to be in force; those of the record at first

    // True when a unit or a basis differs from the previous ones.
    bool HasNewUnits() const;

    // Whether Commit converts flow or viscosity of a liquid line by the gravity of the first case, as it does
    // for all of them, though another case has another one.
    bool GravityMisleads() const;

    // Changes the modes, converts the values and asks whether to round; before that question it calls show,
    // so that the form has the new numbers under the new units and never the former ones. With NoConversion
    // "Yes" the values stay as they are. Without new units nothing is converted; what an earlier change has
    // left unrounded is asked about again. No factor is 0 afterwards and nothing is left to convert. The
    // caller refreshes the form.
    void Commit(ZeroTemperature zero = ZeroTemperature::Stays, const std::function<void()>& show = {});

private:
    void ChangeModes() const;
    void Convert(ZeroTemperature zero) const;
    void ConvertValues(ZeroTemperature zero) const;
    static void KeepNumbers();

    bool committed_ = false;
};

// All digits stay for the life of the guard, and nobody is asked: what the values become is not what the user
// looks at.
class AllDigits {
public:
    AllDigits() : asked_(std::exchange(Suite.ConvertedFigures, Figures::Keep)) {}
    ~AllDigits() { Suite.ConvertedFigures = asked_; }
    AllDigits(const AllDigits&) = delete;
    AllDigits& operator=(const AllDigits&) = delete;

private:
    const Figures asked_;
};

}  // namespace quillmetra
