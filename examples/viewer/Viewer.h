#pragma once

#include "HostWindow.h"
#include "Options.h"
#include "Scene.h"
#include "Stage.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

// The host program: its window, what stands in it, and the loop that serves both. Throws
// NoDisplayError and LibraryError.
class Viewer
{
public:
    // Shows the first scene.
    Viewer(std::vector<Scene> scenes, const Options& options);

    // Serves the window until the user closes it or the time of the live mode is over.
    void Run();
    RgbPicture Picture() const { return PictureOf(*Shown); }

private:
    void ShowScene(size_t index);
    void ShowNextMeasurement();
    void ServeEvents();
    void React(const HostEvent& event);
    void ReactToKey(unsigned long key);

    std::vector<Scene> Scenes;
    std::optional<LiveMode> Live;
    HostWindow Window; // outlives the views in it
    std::unique_ptr<Stage> Shown;
    size_t SceneIndex = 0;
    bool Ended = false;
};
