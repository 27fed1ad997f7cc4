#include "support/DesignerSession.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>

DesignerSession::DesignerSession(const QString& pluginPath)
{
    QDesignerComponents::initializeResources();
    // Designer looks for its plugins when its core is made. Those of the system are none of ours.
    const QStringList everyPath = QCoreApplication::libraryPaths();
    QCoreApplication::setLibraryPaths(pluginPath.isEmpty() ? QStringList()
                                                           : QStringList(pluginPath));
    m_core.reset(QDesignerComponents::createFormEditor(nullptr));
    QCoreApplication::setLibraryPaths(everyPath);
    m_properties.reset(QDesignerComponents::createPropertyEditor(m_core.get(), nullptr));
    m_core->setPropertyEditor(m_properties.get());
    // Designer finds the menus of widgets through what these two install; the core owns both.
    m_core->setIntegration(new QDesignerIntegration(m_core.get(), m_core.get()));
    QDesignerComponents::createTaskMenu(m_core.get(), m_core.get());
    QDesignerComponents::initializePlugins(m_core.get());
}

DesignerSession::~DesignerSession() = default;

bool DesignerSession::open(const QByteArray& form)
{
    m_form.reset(m_core->formWindowManager()->createFormWindow(&m_window));
    m_core->formWindowManager()->setActiveFormWindow(m_form.get());
    QBuffer file;
    file.setData(form);
    file.open(QIODevice::ReadOnly);
    if (!m_form->setContents(&file))
        return false;
    m_window.resize(m_form->mainContainer()->size());
    m_form->resize(m_window.size());
    return true;
}

QByteArray DesignerSession::saved() const { return m_form->contents().toUtf8(); }
