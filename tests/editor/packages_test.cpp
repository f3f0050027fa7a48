#include "editor/packages.h"

#include "PackagesFixture.h"
#include "editor/rules/PackageLocation.h"

namespace orvanta::testing {
namespace {

// Which texts break which rule is the rules' own test; here, what the window does with each refusal.
TEST_F(PackagesManager, RefusedLocationsOnAddingKeepTheEditAsItWasAndCancelWritesNothing) {
    const struct {
        const char* location;
        std::string_view message;
    } refused[] = {{"mylocation", kLocationStructureMessage}, {"<>\\", kRootLocationMessage}};
    open();
    for (const auto& row : refused) {
        dialogs.messageBoxes.clear();
        fillAddedPackage("Extras", row.location, "More");
        button("Command2").click();
        ASSERT_EQ(dialogs.messageBoxes.size(), 1u) << row.location;
        EXPECT_EQ(dialogs.messageBoxes[0].text, row.message) << row.location;
        EXPECT_EQ(dialogs.messageBoxes[0].icon, MessageIcon::Exclamation);
        EXPECT_EQ(button("Command2").text(), "OK") << row.location;
        EXPECT_EQ(text("Text1").text(), "Extras");
        EXPECT_EQ(Combo5().currentText(), row.location);
        button("Command3").click();
    }
    // Cancelling the add clears the edit and writes nothing.
    EXPECT_EQ(button("Command2").text(), "+");
    EXPECT_FALSE(button("Command3").isEnabled());
    EXPECT_EQ(text("Text1").text(), "");
    EXPECT_FALSE(box.exists(working + "\\packages.cfg"));
    EXPECT_FALSE(box.exists(std::string(kRoot) + "\\packages\\Extras"));
}

TEST_F(PackagesManager, SavingARefusedLocationGivesTheJointMessageAndWritesNothing) {
    const std::string before = packageBlock("Docs", "<>\\docs") + packageBlock("Skins", "Themes\\Dark");
    writeList(before);
    open();
    clickRow(1);
    for (const char* location : {"Themes\\", "Dark"}) {  // one rule each
        dialogs.messageBoxes.clear();
        Combo5().setEditText(location);
        button("Command4").click();
        EXPECT_EQ(dialogs.messageTexts(), std::vector<std::string>{std::string(kLocationMessage)})
            << location;
    }
    EXPECT_EQ(readList(), before);
}

TEST_F(PackagesManager, SavingAChangedRowRewritesItWithTheSizeOfItsFolder) {
    // An edition is open: the list lies in its folder, the files below the project's root.
    working = std::string(kRoot) + "\\editions\\Pro";
    writeList(packageBlock("Docs", "<>\\docs", "Manuals", "True", "0", "7", "1") +
              packageBlock("Skins", "Themes\\Dark", "Looks", "0", "0", "0", "1"));
    box.writeFile(std::string(kRoot) + "\\packages\\Skins\\a.bin", std::string(10, 'a'));
    box.writeFile(std::string(kRoot) + "\\packages\\Skins\\deep\\b.bin", std::string(5, 'b'));
    open();
    EXPECT_TRUE(List1().ItemChecked(0));  // "True" reads as ticked

    clickRow(1);
    EXPECT_EQ(text("Text1").text(), "Skins");
    EXPECT_EQ(Combo5().currentText(), "Themes\\Dark");
    EXPECT_EQ(text("Text2").text(), "Looks");
    EXPECT_TRUE(check("Check3").isChecked());
    EXPECT_FALSE(button("Command4").isEnabled());
    EXPECT_TRUE(button("Command3").isEnabled());
    EXPECT_TRUE(button("Command5").isEnabled());

    text("Text2").setText("Dark looks");
    EXPECT_TRUE(button("Command4").isEnabled());
    Combo5().setEditText("C:\\Skins");  // a drive path can't be removed by default
    EXPECT_FALSE(check("Check3").isChecked());
    EXPECT_FALSE(check("Check3").isEnabled());
    button("Command4").click();

    EXPECT_EQ(text("Text3").text(), "15");
    EXPECT_EQ(readList(), packageBlock("Docs", "<>\\docs", "Manuals", "True", "0", "7", "1") +
                              packageBlock("Skins", "C:\\Skins", "Dark looks", "0", "0", "15", "0"));
    EXPECT_EQ(List1().SelectedItemIndex(), 1);
    EXPECT_FALSE(button("Command4").isEnabled());
    EXPECT_TRUE(dialogs.messageBoxes.empty());
}

TEST_F(PackagesManager, CheckBoxesFollowEachOtherAndTheListMark) {
    writeList(packageBlock("A", "<>\\a", "", "0", "0") + packageBlock("B", "<>\\b", "", "1", "1"));
    open();
    clickRow(0);

    check("Check2").click();
    EXPECT_TRUE(check("Check1").isChecked());
    EXPECT_EQ(tables.slot(0).installByDefault, "1");
    check("Check1").click();
    EXPECT_FALSE(check("Check2").isChecked());
    EXPECT_EQ(tables.slot(0).installByDefault, "0");

    // Right after a click on Check1 the list's change leaves Check1 alone, once.
    List1().setItemChecked(0, true);
    EXPECT_EQ(tables.slot(0).installByDefault, "True");
    EXPECT_FALSE(check("Check1").isChecked());
    EXPECT_TRUE(button("Command4").isEnabled());
    List1().setItemChecked(0, false);
    List1().setItemChecked(0, true);
    EXPECT_TRUE(check("Check1").isChecked());

    // A click on the box of another row acts on that row; the click that comes with it leaves
    // the change in memory until the row is saved or the file rewritten.
    QTreeWidget* view = List1().hwnd();
    const QRect rowB = view->visualItemRect(view->topLevelItem(1));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(rowB.left() + 10, rowB.center().y()));
    EXPECT_EQ(List1().SelectedItemIndex(), 1);
    EXPECT_EQ(tables.slot(1).installByDefault, "False");
    EXPECT_EQ(text("Text1").text(), "B");
    EXPECT_FALSE(check("Check1").isChecked());
    EXPECT_FALSE(List1().ListItemsSelected(0));

    // The word goes into the file when another change rewrites it before a save of the row.
    fillAddedPackage("C", "<>\\c", "");
    button("Command2").click();
    EXPECT_EQ(readList().substr(0, packageBlock("A", "<>\\a", "", "True").size()),
              packageBlock("A", "<>\\a", "", "True"));
    EXPECT_TRUE(List1().ItemChecked(0));
}

TEST_F(PackagesManager, TipFolderSizeAndOpenUseTheirOwnFolders) {
    working = std::string(kRoot) + "\\editions\\Pro";
    writeList(packageBlock("Skins", "Themes\\Dark"));
    box.writeFile(std::string(kRoot) + "\\packages\\Skins\\a.bin", "1234");
    open();

    QEnterEvent enter(QPointF(2, 2), QPointF(2, 2), QPointF(2, 2));
    QApplication::sendEvent(&Combo5(), &enter);
    EXPECT_EQ(tips, std::vector<std::string>{kPackagesTipCombo5});

    clickRow(0);
    text("Text3").setFocus();
    QApplication::processEvents();
    EXPECT_EQ(text("Text3").text(), "4");

    button("Command5").click();
    EXPECT_EQ(host.opened, std::vector<std::string>{box.windowsPath(working + "\\packages\\Skins")});
}

TEST_F(PackagesManager, AProjectWithoutItsPackagesFolderKeepsTheAdd) {
    working = "Documents\\Orvanta\\myinstallers\\Other";
    box.writeFile(working + "\\mainsettings.cfg", "Other\r\n");
    open();
    fillAddedPackage("Extras", "<>\\extras", "");
    button("Command2").click();
    ASSERT_EQ(dialogs.messageBoxes.size(), 1u);
    EXPECT_NE(dialogs.messageBoxes[0].text.find("myinstallers\\Other\\packages\\Extras"), std::string::npos);
    EXPECT_EQ(button("Command2").text(), "OK");
    EXPECT_EQ(text("Text1").text(), "Extras");
    EXPECT_FALSE(box.exists(working + "\\packages.cfg"));
}

TEST_F(PackagesManager, TheThousandAndFirstPackageFitsAndTheNextIsABoundsError) {
    std::string list;
    for (int index = 0; index < kLastPackageSlot; ++index)
        list += packageBlock("p" + std::to_string(index), "<>\\p");
    writeList(list);
    open();
    fillAddedPackage("last", "<>\\last", "");
    button("Command2").click();
    EXPECT_EQ(window->packageCount(), 1001);
    list += packageBlock("last", "<>\\last", "", "0", "0", "0", "1");
    EXPECT_EQ(readList(), list);
    EXPECT_TRUE(dialogs.messageBoxes.empty());

    fillAddedPackage("over", "<>\\over", "");
    button("Command2").click();
    EXPECT_EQ(dialogs.messageTexts(),
              std::vector<std::string>{"Run-time error '9':\r\n\r\nSubscript out of range"});
    EXPECT_EQ(readList(), list);
    EXPECT_EQ(List1().ListItemsCount(), 1001);
}

}  // namespace
}  // namespace orvanta::testing
