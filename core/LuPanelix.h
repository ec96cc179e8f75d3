// SPDX-License-Identifier: MIT
#pragma once

#include "core/LuSkin.h"
#include "platform/lumora/actions/LuGetBoundingBoxAction.h"
#include "platform/lumora/actions/LuGetMatrixAction.h"
#include "platform/lumora/actions/LuSearchAction.h"
#include "platform/lumora/base/LvPList.h"
#include "platform/lumora/kits/LuDragger.h"
#include "platform/lumora/sensors/LuSensor.h"
#include "platform/win32/WindowSystem.h"

#include <initializer_list>

class LuAuditor;
class LuGroup;
class LuMaterial;
class LuPickStyle;
class LuText3;
class LuTransform;
class LuTranslation;

/// The root of all components, and the module.
///
/// A component is a node of the scene graph that can show itself in two renditions: as native windows, and as
/// 3D geometry. Either, or both at once, follow the same fields:
///
/// | field            | windows                        | 3D                                          |
/// |------------------|--------------------------------|---------------------------------------------|
/// | `enable`         | the windows take input or not  | can be picked or not; grey when it can't    |
/// | `label`          | the text of the label          | the same                                    |
/// | `auditorID`      | how a program finds the component: no visible effect                         |
/// | `labelAlignment` | LEFT, CENTER, RIGHT            | the same                                    |
///
/// Sizes are in pixels, which are scene units in 3D; y points down in windows and up in 3D. Components are
/// owned by references; `m_parent` holds none. Everything is for the one thread that owns the windows
/// and traverses the scene.
class LuPanelix : public LuDragger {
    LU_KIT_HEADER(LuPanelix)

    enum LabelAlignment { LEFT = 0, CENTER = 1, RIGHT = 2 };

    LuPanelix();

    LuSFBool enable{true};
    LuSFString label;
    LuSFString auditorID;
    LuSFEnum labelAlignment{RIGHT};

    /// Starts the library: the toolkit, all classes. Calls are counted.
    static void init();

    /// Undoes one init; the last one empties the cache of files and removes the classes.
    static void finish();
    static bool isInitialized();
    static const char* getVersion();
    static const char* getProductName() { return "Panelix"; }

    /// Reads a dialog file and gives its first component at the top of the file that has the id; with an
    /// empty id the first of all. A second call for the same file gives the same objects, without reading
    /// again. The caller gets one reference. Null, with a message, when the file can't be read or holds no
    /// such component.
    static LuPanelix* loadFromFile(LvString file, LvString auditorID);

    /// The directories that hold skins, separated by ";": that below LUMORAHOME, then PANELIX_SKINS_DIR.
    static int setSkinsDirectory(LvString directory);      ///< On purpose the same as setSkin. Gives 1.
    static LvString getSkinsDirectory();                   ///< The same as getSkinsDirectories.
    static void setSkinsDirectories(LvString directories); ///< Sets PANELIX_SKINS_DIR alone.
    static LvString getSkinsDirectories();

    /// Takes the skin in a directory: the name itself, then in the working directory, then in the skins
    /// directories. Live components change at once. A name that leads nowhere changes nothing.
    static void setSkin(LvString name);

    /// The directory that setSkin takes for a name; empty when the name leads nowhere.
    static LvString findSkin(const LvString& name);

    /// The steps of a change of skin, for one group by its DEF name: the old group loses its children; the
    /// group read since then gives it its own.
    static void free3DSkin(LvString part);
    static void load3DSkin(LvString part);

    /// Reads the skin files of all classes again.
    static void change3DSkin();
    static int isSkinLoaded() { return s_skin.isLoaded(); }
    static void setSkinLoaded(int isLoaded) { s_skin.setLoaded(isLoaded); }

    /// The look of texts that is used when no skin file gives another.
    static const char* TextProperties;

    /// The font of all windows, the system's at the start. Set it before the build; it stays the caller's.
    static void setFont(HFONT font);
    static HFONT getPanelixFont();
    static void setWidgetFont(HWND window);

    /// The pixels that a label needs, 3 more than its text on both axes. An empty one needs none.
    static LvVec2i32 getLabelPixelSize(LvString text, LuPanelix* component);

    /// The top-level dialog above this component; or with `acceptGroup` the topmost group when there is none.
    /// Components whose parents don't show them in 3D count as topmost unless `ignoreTraversal`. May be null.
    LuPanelix* getFirstTopParent(int ignoreTraversal, int acceptGroup);

    /// The component above. It is not referenced: when it ends, there is none. A child that has been taken
    /// out of its parent keeps it.
    void setParent(LuPanelix* parent);
    LuPanelix* getParent() const { return m_parent; }

    int isBuilt3D() const { return m_built3D; }
    void setBuilt3D(int isBuilt) { m_built3D = isBuilt; }
    int isBuilt2D() const { return m_built2D; }

    /// Whether the 3D rendition is placed and traversed by the parent, rather than a part of it alone.
    int canBeTraversed() const { return m_canBeTraversed; }
    void setCanBeTraversed(int canBeTraversed) { m_canBeTraversed = canBeTraversed; }

    void apply3DParentTranslation(); ///< Puts the parent's offset in front of the geometry.
    LvVec3f get3DParentTranslation() const { return m_parentTranslation; }

    /// Builds a rendition, or brings it up to date: windows below `parent` when `is2D`, else 3D geometry.
    /// `size` asks for a size in pixels, 0 on an axis asks for nothing; `position` is the top-left corner in
    /// the parent.
    virtual void buildWidget(HWND parent, LvVec2i32& size, LvVec2i32& position, int is2D);

    /// Ends the windows.
    virtual void destroyWidget() { m_built2D = 0; }

    /// A field has changed: calls the change operation of each rendition that exists, windows first.
    virtual void updateFromSensor(LuSensor* sensor);

    /// Takes an event of a component below and brings it to the auditors here, or hands it up.
    virtual void applyAuditor(LuPanelix*) {}
    virtual void resetSize() {}    ///< Forgets sizes: the next build measures anew.
    virtual void changeEnable() {} ///< This and the next two bring a field to the windows.
    virtual void changeLabel() {}
    virtual void changeLabelAlignment() {}
    virtual void show3D(int show);                             ///< Shows or hides the geometry.
    virtual void set3DParentTranslation(LvVec3f& translation); ///< The parent's offset, in scene units.
    virtual void change3DPosition() {}                         ///< Follows a new offset or position.
    virtual void change3DWidgetEnable(int enable);             ///< A container takes input, or takes none.
    virtual void change3DEnable();                             ///< This and the next two bring a field to 3D.
    virtual void change3DLabel();
    virtual void change3DLabelAlignment() {}
    virtual void set3DInactive(); ///< Keys and drags in 3D go to another component.

    /// What kind of component this is, for the code below that may not know the classes above it.
    virtual bool isTopLevelDialog() const { return false; }
    virtual bool isDialogGroup() const { return false; }

    /// The first component below this one that has the id; null where there is none, or nothing below.
    virtual LuPanelix* searchForAuditorId(LvString) { return nullptr; }

    /// Reports the component to its container once more, as if it had just changed. What has components below
    /// reports those.
    virtual void reportAgain(LuPanelix& container);

    /// A native menu reports its entry `id`; the data of the entry is this component, as a LuPanelix.
    virtual void menuEvent(void*, int) {}

    /// How convertToCString treats this component's texts: what a line feed becomes; whether escapes stay.
    virtual const char* getLineEnd() const { return "\n"; }
    virtual bool keepsEscapes() const { return false; }

    /// Whether a label of several lines is measured as one.
    virtual bool isSingleLine() const { return false; }

    /// Turns the escapes of a text field (backslash n, t, quote) into what the screen shows. `component` may
    /// be null.
    static LvString convertToCString(const LvString& text, const LuPanelix* component);

    /// Gives the empty text.
    static LvString convertFromCString(const LvString& text, int flag);

    /// Makes `component` the one that takes keys and drags in 3D; the one before is told. May be null.
    static void set3DCurrentActive(LuPanelix* component);
    static LuPanelix* get3DCurrentActive() { return m_lastActive; }

protected:
    ~LuPanelix() override;

    /// Makes parts, and those above them, in this order, in which their geometry is traversed. To be called
    /// before the skin fills them: what a skin lacks would come after the rest otherwise.
    void makeParts(std::initializer_list<const LuSFNode*> parts);

    /// Whether the press that the dragger works on has hit a part, or something below it.
    bool isPicked(const LuSFNode& part) const;

    /// Lets the points that a ray has met so far speak of components: the path of each ends at its last
    /// component, and a detail names this and the nearest public part of it that was met.
    static void addPickDetails(LuRayPickAction* action);

    void addAuditor(LuAuditor* auditor);
    void removeAuditor(LuAuditor* auditor);
    LuAuditor*& getAuditor(int index);
    int getAuditorListLength() const;

    /// Calls `call` with each auditor of this component, in the order of the list; false when there is none.
    /// The length is read once, before: an auditor that removes itself or another meanwhile shifts the
    /// entries behind it, and the places beyond the end are skipped. The component lives until the last call
    /// has returned; the caller uses it no more when the result is true.
    template <class Auditor, class Call>
    bool callAuditors(Call call) {
        const int length = getAuditorListLength();
        if (length == 0)
            return false;
        const LuKeepAlive alive(this);
        for (int index = 0; index < length; ++index) {
            LuAuditor* const auditor = index < getAuditorListLength() ? getAuditor(index) : nullptr;
            if (auditor)
                call(*static_cast<Auditor*>(auditor));
        }
        return true;
    }

    /// What applyDlgCptAuditor of every class does: its own auditors hear of it, or else the parent.
    template <class Component, class Auditor>
    void fireAuditors(void (Auditor::*operation)(Component*)) {
        const LuKeepAlive alive(this);
        auto* component = static_cast<Component*>(this);
        const bool isHeard =
            callAuditors<Auditor>([&](Auditor& auditor) { (auditor.*operation)(component); });
        if (!isHeard && m_parent)
            m_parent->applyAuditor(this);
    }

    static int existWidget(HWND window) { return IsWindow(window) ? 1 : 0; }

    /// The callback of all sensors of all components; `data` is the component.
    static void fieldChangedCB(void* data, LuSensor* sensor);

    /// Makes a sensor that fires at once and attaches it to its field, each unless it is done.
    void attachSensor(LuFieldSensor*& sensor, LuField& field);

    /// Writes a field without waking its own sensor, which may be null.
    template <class Field, class Value>
    static void setWithoutSensor(Field& field, const Value& value, LuFieldSensor* sensor) {
        field.setValueUnheardBy(sensor, value);
    }

    /// Adds the depth of what hangs below `node`, and the parent's offset, to `translation`. `depth` -1 means
    /// that it has not been measured yet.
    void apply3DTranslation(LuNode* node, float& depth, LvVec3f& translation);
    float compute3DDepth(LuNode* node);

    /// Fills `transform` with the translation and rotation that `node` accumulates up to its last node.
    void undoTransformMatrix(LuNode* node, LuTransform* transform);

    bool isLabelCachedBBox() const;
    const LvBox3f& getLabelCachedBBox() const { return m_labelBBox; }
    void setLabelCacheBBox(const LvBox3f& box) { m_labelBBox = box; }

    /// The box of a text behind a group of text properties, both of which may hang somewhere already. An
    /// empty text has a box of size 0 at the origin.
    LvBox3f measureText(LuNode* properties, LuText3* text);

    /// The box of the label's text, measured when it is not known.
    const LvBox3f& measureLabel(LuNode* properties, LuText3* text);

    static LvBox3f getUnsetBox() { return {{-1, -1, -1}, {-1, -1, -1}}; }

    /// Writes all that shows in 3D to a text file.
    void writeNode(const char* fileName);

    void destroy() override;

    /// Ends the cache entry of the file that holds `component` at its top.
    static void destroyByRef(LuPanelix* component);

    /// Reads a skin file from the skins directories, with the application's own search path kept; null when
    /// there is none.
    static LuGroup* readFromFile(const LvString& file);

    /// Takes the skin that the settings name, when none has been taken yet.
    static void selectSkin();

    /// Reads a skin file, or `text` with a message when there is none.
    static void readDefaultSkinsParts(const LvString& file, const char* text);
    friend class LuSkin;

    /// Reads the look of texts before its first use.
    void loadFontProperties() { s_skin.loadOnFirstUse(); }

    /// The number of line feeds: one less than that of the lines.
    static int getNumLines(const LvString& text);

    /// Stores the lines of a text at the front of the target; lines behind them stay as they are.
    static void setStringToText3(LuText3* target, const LvString& text);

    /// Inserts what a key gives and returns the line on which the caret stands then. A text with a line feed
    /// opens an empty line behind `line`, and is not inserted itself. Any other goes in front of the byte
    /// `column` of the line; -1 appends it.
    static int insertTextTo3DText(LvString text, LuText3* target, int line, int column);

    /// Breaks a line of the target into lines that are `maxWidth` scene units wide behind `properties`, and
    /// returns the last of them. The character that crosses the limit stays at the end of its line and stands
    /// at the beginning of the next one too. `component` has its 3D rendition. A line that isn't there is
    /// left alone.
    static int wrap3DTextLine(LuText3* target, int line, float maxWidth, LuGroup* properties,
                              LuPanelix* component);

    LuSFNode geomSwitch;

    int m_built2D = 0;
    int m_visible3D = 1;
    int m_built3D = 0;
    int m_canBeTraversed = 1;
    HWND m_parentWidget = nullptr;
    LuPanelix* m_parent = nullptr;
    LvPList* m_auditors = nullptr;
    LuFieldSensor* m_enableSensor = nullptr;
    LuFieldSensor* m_labelSensor = nullptr;
    LuFieldSensor* m_labelAlignmentSensor = nullptr;
    LuGetBoundingBoxAction* m_bboxAction = nullptr;
    LuSearchAction* m_searchAction = nullptr;
    LuGetMatrixAction* m_matrixAction = nullptr;
    LuPickStyle* m_pickStyle = nullptr;
    LuMaterial* m_material = nullptr;
    LuTranslation* m_parentTranslationNode = nullptr;
    LvVec3f m_parentTranslation;
    LvBox3f m_labelBBox = getUnsetBox();

private:
    void create3DPanelix();
    void setLook3D(int pickStyle, bool isEnabled);
    void leaveSiblings();

    /// The components whose parent this is, and this one's place among those of its own parent.
    LuPanelix* m_firstChild = nullptr;
    LuPanelix* m_previousSibling = nullptr;
    LuPanelix* m_nextSibling = nullptr;

    static LuSkin s_skin;
    static int s_initRefCount;
    static LuPanelix* m_lastActive;
    static LvString s_skinsPath;
};
