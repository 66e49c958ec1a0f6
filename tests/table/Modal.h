#pragma once
// Answers the next modal box from inside its own event loop, as a person would.
#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <functional>

namespace testhilfe {

// Calls `antworten` with the modal widget as soon as one is open.
inline void modalBeantworten(std::function<void(QWidget*)> antworten, int versuche = 200) {
    QTimer::singleShot(5, [antworten = std::move(antworten), versuche]() mutable {
        if (QWidget* modal = QApplication::activeModalWidget()) antworten(modal);
        else if (versuche > 0) modalBeantworten(std::move(antworten), versuche - 1);
    });
}

// Clicks a standard button of the next message box and hands back its text.
inline void meldungBeantworten(QMessageBox::StandardButton knopf, QString* text = nullptr) {
    modalBeantworten([knopf, text](QWidget* w) {
        auto* box = qobject_cast<QMessageBox*>(w);
        if (!box) return;
        if (text) *text = box->text();
        box->button(knopf)->click();
    });
}

}  // namespace testhilfe
