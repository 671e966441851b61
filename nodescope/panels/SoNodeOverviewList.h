#pragma once

#include <nodescope/panels/SoNodescopeList.h>

class SoBaseKit;

/** The fields of one container; those that hold parts of a kit are shown when the user wants them. */
class NODESCOPE_API SoNodeOverviewList : public SoNodescopeList {
public:
    explicit SoNodeOverviewList(QWidget* parent = nullptr);

    /** Shows the fields of a container in place of all rows, from the first one on; none for null. */
    void showContainer(SoFieldContainer* container);
    /** Reads fonts, colours and whether parts are shown from the preference store. */
    void applyPreferences();
};
