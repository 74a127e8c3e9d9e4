#include "TestForm.h"

#include <tarnwise/TRN_DEA.h>

#include <QDesktopServices>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>
#include <fstream>

namespace Tarnwise {

class QtHelp : public QtFormTest {
 protected:
  QtHelp() {
    toolkit->AutoAnswer = false;
    platform->Trace.MessageBox = [this](const String& text, int style, const String& title) {
      form->Log.push_back(title + std::to_string(style) + ": " + text);
    };
    // A person who answers whatever box comes up.
    QObject::connect(&person, &QTimer::timeout, [this] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      ++boxes;
      QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    });
    person.start(5);
  }
  void Ask(const String& path) {
    platform->Help(*form, path, 1, 4005025);
    QTest::qWait(30);
  }

  QTimer person;
  int boxes = 0;
};

TEST_F(QtHelp, OfTheHostGetsTheStepsWindow) {
  QWidget* asked = nullptr;
  String with;
  SetHelp(*platform, [&](WindowHandle window, const String& path, int command, int context) {
    asked = QWidget::find(static_cast<WId>(window));
    with = path + " " + std::to_string(command) + " " + std::to_string(context);
  });
  Show();
  Ask("C:/KESTA\\KESTA.HLP");
  EXPECT_EQ(asked, &Window());
  EXPECT_EQ(with, "C:/KESTA\\KESTA.HLP 1 4005025");
  EXPECT_EQ(boxes, 0);
}

TEST_F(QtHelp, OfTheHostMayWaitForAWindowOfItsOwnWhileTheFormGoesOn) {
  form->cmdSource.Click = [this] { form->cmdGo.Caption = "new"; };
  form->cmdGo.Click = [this] { platform->Help(*form, "path", 1, 4005025); };
  SetHelp(*platform, [this](WindowHandle, const String&, int, int) {
    Click(form->cmdSource);
    EXPECT_EQ(As<QPushButton>(form->cmdGo).text(), "new") << "what handlers change meanwhile is seen";
  });
  Show();
  Click(form->cmdGo);
  EXPECT_EQ(form->cmdGo.Caption(), "new");
}

TEST_F(QtHelp, WithoutAFileSaysSoByTheBoxOfThePlatform) {
  Show();
  Ask("/nowhere\\KESTA.HLP");
  EXPECT_EQ(Joined(form->Log), "KESTA64: There is no help file /nowhere\\KESTA.HLP.");
  EXPECT_EQ(boxes, 1);
  EXPECT_EQ(platform->MessagesShown(), 1);
}

TEST_F(QtHelp, OpensTheFileAndDoesNotAskWhatCameOfIt) {
  const QTemporaryDir folder;
  const String path = folder.path().toStdString() + "\\KESTA.HLP";
  std::ofstream(folder.filePath("KESTA.HLP").toStdString()) << "help";
  Show();
  Ask(path);  // nothing here can open it
  EXPECT_EQ(Joined(form->Log), "");
  EXPECT_EQ(boxes, 0);
  EXPECT_EQ(platform->MessagesShown(), 0);
}

TEST_F(QtHelp, OfAScriptOpensNothing) {
  toolkit->AutoAnswer = true;
  Show();
  Ask("/nowhere\\KESTA.HLP");
  EXPECT_EQ(boxes, 0);
}

}  // namespace Tarnwise
