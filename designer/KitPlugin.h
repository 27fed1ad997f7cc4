#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <memory>
#include <vector>

/// One widget of the kit, as Qt Designer sees it.
class KitWidget : public QDesignerCustomWidgetInterface {
public:
    struct Description {
        const char* className;
        const char* extends; ///< class of the toolkit
        const char* header;
        const char* objectName; ///< of a new one
        const char* toolTip;
        int width; ///< initial size in pixels
        int height; ///< initial size in pixels
        QWidget* (*create)(QWidget* parent);
        bool hasPages; ///< holds other widgets, one page at a time
    };

    explicit KitWidget(const Description& description);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget* createWidget(QWidget* parent) override;
    QString domXml() const override;

private:
    const Description& m_description;
};

/// All widgets of the kit.
class KitPlugin : public QObject, public QDesignerCustomWidgetCollectionInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit KitPlugin(QObject* parent = nullptr);

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override;

private:
    std::vector<std::unique_ptr<KitWidget>> m_widgets;
};
