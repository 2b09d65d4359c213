// What the two fluid data programs share: three cases of temperature and pressure, a fluid, and its
// properties, which are the results.
#pragma once

#include <initializer_list>

#include "forms/FluidForm.h"

namespace quillmetra {

class DataForm : public FluidForm {
public:
    explicit DataForm(const Names& names);

    ControlArray<Label> lblCase{Picture1, "lblCase", {0, 1, 2}, ""};
    Label lblTemp{Picture1, "lblTemp", "Temperature"};
    ControlArray<TextBox> txtTemp{Picture1, "txtTemp", {0, 1, 2}};
    Label lblPressure{Picture1, "lblPressure", "Pressure"};
    ControlArray<TextBox> txtPressure{Picture1, "txtPressure", {0, 1, 2}};
    ControlArray<CommandButton> cmdOK{Picture1, "cmdOK", {0, 1, 2}, ""};
    CommandButton cmdCalculateAll{Picture1, "cmdCalculateAll", "&Calculate all"};
    ControlArray<DropButton> cmdUnits{Picture1, "cmdUnits", {2, 3}, ""};

    // Properties of liquids and of gases
    Label lblMW{Picture1, "lblMW", "Molecular weight"};
    ControlArray<TextBox> txtMW{Picture1, "txtMW", {0, 1, 2}};
    Label lblNormalBP{Picture1, "lblNormalBP", "Normal boiling point"};
    ControlArray<TextBox> txtNormalBP{Picture1, "txtNormalBP", {0, 1, 2}};
    Label unNormalBP{Picture1, "unNormalBP"};
    Label lblCritPressure{Picture1, "lblCritPressure", "Critical pressure"};
    ControlArray<TextBox> txtCritPressure{Picture1, "txtCritPressure", {0, 1, 2}};
    Label unCritPressure{Picture1, "unCritPressure"};
    Label lblCritTemp{Picture1, "lblCritTemp", "Critical temperature"};
    ControlArray<TextBox> txtCritTemp{Picture1, "txtCritTemp", {0, 1, 2}};
    Label unCritTemp{Picture1, "unCritTemp"};
    Label lblDensity{Picture1, "lblDensity", "Density"};
    ControlArray<TextBox> txtDensity{Picture1, "txtDensity", {0, 1, 2}};
    Label unDensity{Picture1, "unDensity"};
    Label lblViscosity{Picture1, "lblViscosity", "Viscosity"};
    ControlArray<TextBox> txtViscosity{Picture1, "txtViscosity", {0, 1, 2}};
    Label unViscosity{Picture1, "unViscosity"};
    Label lblVapPressure{Picture1, "lblVapPressure", "Vapor pressure"};
    ControlArray<TextBox> txtVapPressure{Picture1, "txtVapPressure", {0, 1, 2}};
    Label unVapPressure{Picture1, "unVapPressure"};

    void cmdOK_Click(int index);

protected:
    // A property of the case in hand: a row of the record and its value in the unit shown.
    struct Property {
        std::size_t Row;
        double Value;
    };
    // Rounds the properties into the case in hand. Throws, with nothing stored, when one is not finite.
    static void Store(std::initializer_list<Property> properties);
    // degF and degR in the units of rows 2 and 12.

    TextBox& TemperatureBox(int caseIndex) override { return txtTemp(caseIndex); }
    TextBox& PressureBox(int caseIndex) override { return txtPressure(caseIndex); }
    bool CheckState() override;
    bool IsTemperatureEntered(int caseIndex) override;
    void TellNeedsState(int caseIndex) override;
    void PropertiesTaken() override;
    void FluidTaken() override;
    void ShowChoices() override;
    void StoreOwn() override;
    CommandButton& CalculateAllButton() override { return cmdCalculateAll; }
    bool HasData(int caseIndex) override;
    Control* CalculateButton(int caseIndex) override { return &cmdOK(caseIndex); }

    // To be called by the form when its own controls stand.
    void Assemble();
};

}  // namespace quillmetra
