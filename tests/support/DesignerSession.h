#pragma once

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QExtensionManager>

#include <memory>

/// Qt Designer's own components, without its window. One at a time.
class DesignerSession {
public:
    /// With the plugins of the folder "designer" under @p pluginPath; with an empty path with none.
    explicit DesignerSession(const QString& pluginPath);
    ~DesignerSession();
    DesignerSession(const DesignerSession&) = delete;
    DesignerSession& operator=(const DesignerSession&) = delete;

    /// Opens a form, and closes the one that was open. False if Designer refuses it.
    bool open(const QByteArray& form);
    void show() { m_window.show(); }

    /// What Designer would write to the form's file now.
    QByteArray saved() const;

    /// The widget of that name in the form; null if there is none.
    template <typename Widget = QWidget> Widget* find(const QString& name) const
    {
        return m_form->mainContainer()->findChild<Widget*>(name);
    }

    /// What Designer knows how to do with @p object; null if it does not.
    template <typename Extension> Extension* extension(QObject* object) const
    {
        return qt_extension<Extension*>(m_core->extensionManager(), object);
    }

    QDesignerFormWindowInterface& form() const { return *m_form; }

private:
    std::unique_ptr<QDesignerFormEditorInterface> m_core;
    std::unique_ptr<QDesignerPropertyEditorInterface> m_properties;
    QWidget m_window; // what Designer has the form stand in
    std::unique_ptr<QDesignerFormWindowInterface> m_form;
};
