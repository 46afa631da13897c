<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>DeviceType</name>
    <message>
        <source>phone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>modem</source>
        <translation>Modem</translation>
    </message>
    <message>
        <source>computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>headset</source>
        <translation>Casque</translation>
    </message>
    <message>
        <source>headphones</source>
        <translation>Écouteurs</translation>
    </message>
    <message>
        <source>audiovideo</source>
        <translation>Audio/vidéo</translation>
    </message>
    <message>
        <source>keyboard</source>
        <translation>Clavier</translation>
    </message>
    <message>
        <source>mouse</source>
        <translation>Souris</translation>
    </message>
    <message>
        <source>joypad</source>
        <translation>Manette</translation>
    </message>
    <message>
        <source>tablet</source>
        <translation>Tablette</translation>
    </message>
    <message>
        <source>peripheral</source>
        <translation>Périphérique</translation>
    </message>
    <message>
        <source>camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>imaging</source>
        <translation>Imagerie</translation>
    </message>
    <message>
        <source>wearable</source>
        <translation>Objet porté</translation>
    </message>
    <message>
        <source>toy</source>
        <translation>Jouet</translation>
    </message>
    <message>
        <source>health</source>
        <translation>Santé</translation>
    </message>
</context>
<context>
    <name>Pin</name>
    <message>
        <source>Bluetooth Pairing PIN</source>
        <translation>Code PIN d’appairage Bluetooth</translation>
    </message>
    <message>
        <source>Please anter following the PIN:</source>
        <translation>PIN à saisir sur l’appareil&#xa0;:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>audiotest</name>
    <message>
        <source>Bluetooth Audio Test</source>
        <translation>Test audio Bluetooth</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Audio Playback</source>
        <translation>Lecture audio</translation>
    </message>
    <message>
        <source>Test left</source>
        <translation>Tester à gauche</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Tester</translation>
    </message>
    <message>
        <source>Test right</source>
        <translation>Tester à droite</translation>
    </message>
    <message>
        <source>Test mono</source>
        <translation>Tester en mono</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>D</translation>
    </message>
    <message>
        <source>Audio Recording</source>
        <translation>Enregistrement audio</translation>
    </message>
    <message>
        <source>Record sample</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Playback sample</source>
        <translation>Écouter</translation>
    </message>
    <message>
        <source>Audio Profiles:</source>
        <translation>Profils audio&#xa0;:</translation>
    </message>
    <message>
        <source>Bluetooth Audio Profile</source>
        <translation>Profil audio Bluetooth</translation>
    </message>
    <message>
        <source>An error occure while changing profile</source>
        <translation>Une erreur est survenue lors du changement de profil</translation>
    </message>
    <message>
        <source>Audio source name</source>
        <translation>Nom de la source audio</translation>
    </message>
    <message>
        <source>An error occurred while getting the audio source name.</source>
        <translation>Une erreur est survenue lors de la recherche du nom de la source audio.</translation>
    </message>
    <message>
        <source>Sample Record</source>
        <translation>Enregistrement d’essai</translation>
    </message>
    <message>
        <source>An error occurred while reconding the audio sample.
The file is empty</source>
        <translation>Une erreur est survenue lors de l’enregistrement d’essai.
Le fichier est vide.</translation>
    </message>
</context>
<context>
    <name>btscan</name>
    <message>
        <source>Bluetooth Scan</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>Appareils trouvés</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connecter</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Opération en cours</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Bluetooth Connection</source>
        <translation>Connexion Bluetooth</translation>
    </message>
    <message>
        <source>Authentication rejected. Remove the device and repeat pairing</source>
        <translation>Authentification refusée. Supprimez l’appareil et recommencez l’appairage.</translation>
    </message>
    <message>
        <source>Connection attempt failed</source>
        <translation>La tentative de connexion a échoué</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; successfully connected.</source>
        <translation>L’appareil «&#xa0;%1&#xa0;» est maintenant connecté.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; connection failure</source>
        <translation>Échec de la connexion de l’appareil «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Bluetooth Pairing</source>
        <translation>Appairage Bluetooth</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; pairing failure</source>
        <translation>Échec de l’appairage de l’appareil «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Bluetooth Scan</source>
        <comment>window title</comment>
        <translation>Recherche d’appareils Bluetooth</translation>
    </message>
</context>
<context>
    <name>options</name>
    <message>
        <source>Bluetooth Options</source>
        <translation>Options Bluetooth</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Debug log</source>
        <translation>Log de débogage</translation>
    </message>
    <message>
        <source>A2DP</source>
        <extracomment>The settings store this very text: it stays as it is in every language.</extracomment>
        <translation>A2DP</translation>
    </message>
    <message>
        <source>HSP/HFP</source>
        <extracomment>The settings store this very text: it stays as it is in every language.</extracomment>
        <translation>HSP/HFP</translation>
    </message>
    <message>
        <source>Show tray icon</source>
        <translation>Icône système</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Default headsets profile:</source>
        <translation>Profil casque par défaut&#xa0;:</translation>
    </message>
</context>
<context>
    <name>pairdesk</name>
    <message>
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>Bluetooth ON/OFF</source>
        <translation>Activer le Bluetooth</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connecter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Paired and connected devices</source>
        <translation>Appareils appairés et connectés</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Déconnecter</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>Options…</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Bluetooth Connect</source>
        <translation>Connexion Bluetooth</translation>
    </message>
    <message>
        <source>Audio test</source>
        <translation>Test audio</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Déconnecté</translation>
    </message>
</context>
</TS>
