"""Orca's speech server in the checks (atspi_check names it in Orca's settings): in place of a
synthesizer the test machine lacks, it writes each utterance as a line to $ORCA_SPEECH_LOG."""
import os

from orca import speechserver


class SpeechServer(speechserver.SpeechServer):
    _server = None

    @staticmethod
    def getFactoryName():
        return "log"

    @staticmethod
    def getSpeechServers():
        return [SpeechServer.getSpeechServer()]

    @staticmethod
    def getSpeechServer(info=None):
        if SpeechServer._server is None:
            SpeechServer._server = SpeechServer()
        return SpeechServer._server

    @staticmethod
    def shutdownActiveServers():
        pass

    def __init__(self):
        super().__init__()
        self._log = open(os.environ["ORCA_SPEECH_LOG"], "a", buffering=1)

    def getInfo(self):
        return ["log", "log"]

    def speak(self, text=None, acss=None, interrupt=True):
        if text:
            self._log.write(text.replace("\n", " ") + "\n")
